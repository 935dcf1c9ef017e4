// Inverter library module: result is the bitwise complement of data.
module lpm_inv #(
  parameter lpm_width = 1,
  /* verilator lint_off UNUSEDPARAM */
  parameter lpm_type = "LPM_INV",
  parameter lpm_hint = "UNUSED"
  /* verilator lint_on UNUSEDPARAM */
) (
  input [lpm_width-1:0] data,
  output [lpm_width-1:0] result);

  assign result = ~data;
endmodule
