// Combinational shifter library module: shifts data by distance places, left while direction is low (an
// unconnected direction is low) and right while it is high. LOGICAL fills with zeros, ARITHMETIC fills right
// shifts with the sign bit, ROTATE turns the bits around (by distance modulo lpm_width).
// overflow: a left shift lost significant bits (shifting the result back does not give data, read unsigned for
// LOGICAL and signed for ARITHMETIC). underflow: a right shift lost every significant bit (the result is all
// fill bits while data was not). Both stay low for ROTATE and for shifts the other way.
module lpm_clshift #(
  parameter lpm_width = 1,
  parameter lpm_widthdist = 1,
  parameter lpm_shifttype = "LOGICAL",
  /* verilator lint_off UNUSEDPARAM */
  parameter lpm_type = "LPM_CLSHIFT",
  parameter lpm_hint = "UNUSED"
  /* verilator lint_on UNUSEDPARAM */
) (
  input [lpm_width-1:0] data,
  input [lpm_widthdist-1:0] distance,
`ifdef YOSYS
  // Yosys has no pulled nets; its hierarchy pass gives an unconnected input the default declared here.
  input direction = 1'b0,
`elsif VERILATOR
  // In Verilator the ports themselves are pulled.
  input tri0 direction,
`else
  // Simulators pull the nets the ports feed (below), so that a connected port stays an input.
  input direction,
`endif
  output [lpm_width-1:0] result,
  output overflow, underflow);

  // The inputs with their defaults when unconnected.
`ifdef YOSYS
  wire direction_p = direction;
`elsif VERILATOR
  wire direction_p = direction;
`else
  tri0 direction_p = direction;
`endif

  // String parameters are compared with literals of other widths; those comparisons are meant.
  /* verilator lint_off WIDTH */
  localparam arithmetic = lpm_shifttype == "ARITHMETIC";
  localparam rotate = lpm_shifttype == "ROTATE";
  /* verilator lint_on WIDTH */

  wire [lpm_width-1:0] fill = (arithmetic && data[lpm_width-1]) ? {lpm_width{1'b1}} : {lpm_width{1'b0}};
  wire [lpm_width-1:0] left = data << distance;
  // Each arithmetic shift stands alone: inside a conditional with an unsigned operand it would shift logically.
  wire signed [lpm_width-1:0] signed_data = data;
  wire signed [lpm_width-1:0] signed_left = left;
  wire [lpm_width-1:0] arithmetic_right = signed_data >>> distance;
  wire [lpm_width-1:0] arithmetic_back = signed_left >>> distance;
  wire [lpm_width-1:0] right = arithmetic ? arithmetic_right : data >> distance;
  wire [lpm_width-1:0] back = arithmetic ? arithmetic_back : left >> distance;

  // Rotation by distance modulo the width, widened so that the remainder is taken of the whole distance.
  localparam wide = (lpm_widthdist > 32 ? lpm_widthdist : 32);
  wire [wide-1:0] turn = {{(wide-lpm_widthdist){1'b0}}, distance} % lpm_width;
  wire [wide-1:0] back_turn = lpm_width - turn;
  wire [lpm_width-1:0] rotated_left = (data << turn) | (data >> back_turn);
  wire [lpm_width-1:0] rotated_right = (data >> turn) | (data << back_turn);

  assign result = rotate ? (direction_p ? rotated_right : rotated_left) : (direction_p ? right : left);
  assign overflow = !rotate && !direction_p && back != data;
  assign underflow = !rotate && direction_p && right == fill && data != fill;
endmodule
