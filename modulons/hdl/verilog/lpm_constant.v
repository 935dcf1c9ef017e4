// Constant library module: drives lpm_cvalue on its result bus.
// String parameters are compared with literals of other widths; those comparisons are meant.
/* verilator lint_off WIDTH */
module lpm_constant (result);
  parameter lpm_width = 1;
  parameter lpm_cvalue = 0;
  /* verilator lint_off UNUSEDPARAM */
  parameter lpm_strength = "UNUSED";
  parameter lpm_type = "LPM_CONSTANT";
  parameter lpm_hint = "UNUSED";
  /* verilator lint_on UNUSEDPARAM */

  output [lpm_width-1:0] result;

  assign result = lpm_cvalue;
endmodule
/* verilator lint_on WIDTH */
