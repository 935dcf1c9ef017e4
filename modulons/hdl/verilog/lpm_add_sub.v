// Adder/subtractor library module: signed or unsigned, with carry in, carry out and overflow.
// String parameters are compared with literals of other widths; those comparisons are meant.
/* verilator lint_off WIDTH */
module lpm_add_sub (dataa, datab, cin, add_sub, clock, clken, aclr, result, cout, overflow);
  parameter lpm_width = 1;
  parameter lpm_direction = "UNUSED";
  parameter lpm_representation = "SIGNED";
  parameter lpm_pipeline = 0;
  parameter lpm_type = "LPM_ADD_SUB";
  parameter lpm_hint = "UNUSED";

  input [lpm_width-1:0] dataa, datab;
  input cin, add_sub, clock, clken, aclr;
  output [lpm_width-1:0] result;
  output cout, overflow;

  // Unconnected add_sub adds; an unconnected carry in is 0, so a subtraction without borrow needs cin tied high.
  tri1 add_sub, clken;
  tri0 cin, clock, aclr;

  wire add = (lpm_direction == "ADD") ? 1'b1 : (lpm_direction == "SUB") ? 1'b0 : add_sub;
  wire [lpm_width-1:0] operand = add ? datab : ~datab;
  wire [lpm_width:0] sum = {1'b0, dataa} + {1'b0, operand} + {{lpm_width{1'b0}}, cin};
  wire signed_overflow = (dataa[lpm_width-1] == operand[lpm_width-1]) &&
                         (sum[lpm_width-1] != dataa[lpm_width-1]);
  wire unsigned_overflow = add ? sum[lpm_width] : ~sum[lpm_width];
  wire over = (lpm_representation == "UNSIGNED") ? unsigned_overflow : signed_overflow;

  // Optional pipeline of lpm_pipeline clock cycles on all outputs.
  localparam depth = (lpm_pipeline > 0) ? lpm_pipeline : 1;
  reg [lpm_width+1:0] stage [0:depth-1];
  integer i;
  always @(posedge clock or posedge aclr)
    if (aclr) for (i = 0; i < depth; i = i + 1) stage[i] <= {(lpm_width+2){1'b0}};
    else if (clken) begin
      stage[0] <= {over, sum};
      for (i = 1; i < depth; i = i + 1) stage[i] <= stage[i-1];
    end
  wire [lpm_width+1:0] out = (lpm_pipeline > 0) ? stage[depth-1] : {over, sum};

  assign result = out[lpm_width-1:0];
  assign cout = out[lpm_width];
  assign overflow = out[lpm_width+1];
endmodule
