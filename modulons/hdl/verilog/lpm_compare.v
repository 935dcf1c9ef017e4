// Comparator library module: signed or unsigned magnitude comparison of two buses.
// String parameters are compared with literals of other widths; those comparisons are meant.
/* verilator lint_off WIDTH */
module lpm_compare (dataa, datab, clock, clken, aclr, alb, aeb, agb, ageb, aneb, aleb);
  parameter lpm_width = 1;
  parameter lpm_representation = "UNSIGNED";
  parameter lpm_pipeline = 0;
  parameter lpm_type = "LPM_COMPARE";
  parameter lpm_hint = "UNUSED";

  input [lpm_width-1:0] dataa, datab;
  input clock, clken, aclr;
  output alb, aeb, agb, ageb, aneb, aleb;

  tri0 clock, aclr;
  tri1 clken;

  // Signed comparison flips both sign bits so that an unsigned comparison gives the signed order.
  wire [lpm_width-1:0] flip = (lpm_representation == "SIGNED") ? {1'b1, {(lpm_width-1){1'b0}}} : {lpm_width{1'b0}};
  wire [lpm_width-1:0] a = dataa ^ flip;
  wire [lpm_width-1:0] b = datab ^ flip;
  wire [5:0] now = {a < b, a == b, a > b, a >= b, a != b, a <= b};

  localparam depth = (lpm_pipeline > 0) ? lpm_pipeline : 1;
  reg [5:0] stage [0:depth-1];
  integer i;
  always @(posedge clock or posedge aclr)
    if (aclr) for (i = 0; i < depth; i = i + 1) stage[i] <= 6'b0;
    else if (clken) begin
      stage[0] <= now;
      for (i = 1; i < depth; i = i + 1) stage[i] <= stage[i-1];
    end
  wire [5:0] out = (lpm_pipeline > 0) ? stage[depth-1] : now;

  assign {alb, aeb, agb, ageb, aneb, aleb} = out;
endmodule
