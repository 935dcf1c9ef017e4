// Adder/subtractor library module: signed or unsigned, with carry in, carry out and overflow.
// String parameters are compared with literals of other widths; those comparisons are meant.
/* verilator lint_off WIDTH */
module lpm_add_sub #(
  parameter lpm_width = 1,
  parameter lpm_direction = "UNUSED",
  parameter lpm_representation = "SIGNED",
  parameter lpm_pipeline = 0,
  /* verilator lint_off UNUSEDPARAM */
  parameter lpm_type = "LPM_ADD_SUB",
  parameter lpm_hint = "UNUSED"
  /* verilator lint_on UNUSEDPARAM */
) (
  input [lpm_width-1:0] dataa, datab,
`ifdef YOSYS
  input add_sub = 1'b1, input clken = 1'b1, input clock = 1'b0, input aclr = 1'b0, input cin = 1'b0,
`elsif VERILATOR
  input tri1 add_sub, clken,
  input tri0 clock, aclr, cin,
`else
  input add_sub, clken, clock, aclr, cin,
`endif
  output [lpm_width-1:0] result,
  output cout, overflow);

  // Unconnected inputs: add_sub and clken 1, clock and aclr 0; an unconnected carry in is 0 when adding and 1
  // (no borrow) when subtracting, so it is pulled both ways and the direction picks one. The _p nets carry the
  // inputs with those defaults: nets pulled to them, so that a connected port stays an input; where a tool has
  // no pulled nets (Yosys) or pulls only ports (Verilator, which reads an unconnected cin as 0), the ports
  // themselves carry the defaults (docs/hdl-models.md).
`ifdef YOSYS
  wire add_sub_p = add_sub, clken_p = clken, cin_high = cin;
  wire clock_p = clock, aclr_p = aclr, cin_low = cin;
`elsif VERILATOR
  wire add_sub_p = add_sub, clken_p = clken, cin_high = cin;
  wire clock_p = clock, aclr_p = aclr, cin_low = cin;
`else
  tri1 add_sub_p = add_sub, clken_p = clken, cin_high = cin;
  tri0 clock_p = clock, aclr_p = aclr, cin_low = cin;
`endif

  wire add = (lpm_direction == "ADD") ? 1'b1 : (lpm_direction == "SUB") ? 1'b0 : add_sub_p;
  wire carry = add ? cin_low : cin_high;
  wire [lpm_width-1:0] operand = add ? datab : ~datab;
  wire [lpm_width:0] sum = {1'b0, dataa} + {1'b0, operand} + {{lpm_width{1'b0}}, carry};
  wire signed_overflow = (dataa[lpm_width-1] == operand[lpm_width-1]) &&
                         (sum[lpm_width-1] != dataa[lpm_width-1]);
  wire unsigned_overflow = add ? sum[lpm_width] : ~sum[lpm_width];
  wire over = (lpm_representation == "UNSIGNED") ? unsigned_overflow : signed_overflow;

  // Optional pipeline of lpm_pipeline clock cycles on all outputs.
  wire [lpm_width+1:0] now = {over, sum};
  localparam depth = (lpm_pipeline > 0) ? lpm_pipeline : 1;
  // The stages side by side, the newest lowest; chain adds the current value below them.
  reg [depth*(lpm_width+2)-1:0] stage = {(depth*(lpm_width+2)){1'b0}};
  wire [(depth+1)*(lpm_width+2)-1:0] chain = {stage, now};
  always @(posedge clock_p or posedge aclr_p)
    if (aclr_p) stage <= {(depth*(lpm_width+2)){1'b0}};
    else if (clken_p) stage <= chain[depth*(lpm_width+2)-1:0];
  wire [lpm_width+1:0] out = (lpm_pipeline > 0) ? chain[(depth+1)*(lpm_width+2)-1 -: lpm_width+2] : now;

  assign result = out[lpm_width-1:0];
  assign cout = out[lpm_width];
  assign overflow = out[lpm_width+1];
endmodule
/* verilator lint_on WIDTH */
