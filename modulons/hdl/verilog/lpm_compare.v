// Comparator library module: signed or unsigned magnitude comparison of two buses.
// String parameters are compared with literals of other widths; those comparisons are meant.
/* verilator lint_off WIDTH */
module lpm_compare #(
  parameter lpm_width = 1,
  parameter lpm_representation = "UNSIGNED",
  parameter lpm_pipeline = 0,
  /* verilator lint_off UNUSEDPARAM */
  parameter lpm_type = "LPM_COMPARE",
  parameter lpm_hint = "UNUSED"
  /* verilator lint_on UNUSEDPARAM */
) (
  input [lpm_width-1:0] dataa, datab,
`ifdef YOSYS
  input clken = 1'b1, input clock = 1'b0, input aclr = 1'b0,
`elsif VERILATOR
  input tri1 clken,
  input tri0 clock, aclr,
`else
  input clken, clock, aclr,
`endif
  output alb, aeb, agb, ageb, aneb, aleb);

  // Unconnected inputs: clken 1, clock and aclr 0. The _p nets carry the inputs with those defaults: nets
  // pulled to them, so that a connected port stays an input; where a tool has no pulled nets (Yosys) or pulls
  // only ports (Verilator), the ports themselves carry the defaults (docs/hdl-models.md).
`ifdef YOSYS
  wire clken_p = clken;
  wire clock_p = clock, aclr_p = aclr;
`elsif VERILATOR
  wire clken_p = clken;
  wire clock_p = clock, aclr_p = aclr;
`else
  tri1 clken_p = clken;
  tri0 clock_p = clock, aclr_p = aclr;
`endif

  // Signed comparison flips both sign bits so that an unsigned comparison gives the signed order.
  wire [lpm_width-1:0] flip = (lpm_representation == "SIGNED") ? {1'b1, {(lpm_width-1){1'b0}}} : {lpm_width{1'b0}};
  wire [lpm_width-1:0] a = dataa ^ flip;
  wire [lpm_width-1:0] b = datab ^ flip;
  wire [5:0] now = {a < b, a == b, a > b, a >= b, a != b, a <= b};

  localparam depth = (lpm_pipeline > 0) ? lpm_pipeline : 1;
  // The stages side by side, the newest lowest; chain adds the current value below them.
  reg [depth*6-1:0] stage = {(depth*6){1'b0}};
  wire [(depth+1)*6-1:0] chain = {stage, now};
  always @(posedge clock_p or posedge aclr_p)
    if (aclr_p) stage <= {(depth*6){1'b0}};
    else if (clken_p) stage <= chain[depth*6-1:0];
  wire [5:0] out = (lpm_pipeline > 0) ? chain[(depth+1)*6-1 -: 6] : now;

  assign {alb, aeb, agb, ageb, aneb, aleb} = out;
endmodule
/* verilator lint_on WIDTH */
