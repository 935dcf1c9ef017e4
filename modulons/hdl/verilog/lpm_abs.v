// Absolute value library module: result is the magnitude of the two's-complement data; overflow is high for the
// most negative value, whose magnitude does not fit (result is then data itself).
module lpm_abs #(
  parameter lpm_width = 1,
  /* verilator lint_off UNUSEDPARAM */
  parameter lpm_type = "LPM_ABS",
  parameter lpm_hint = "UNUSED"
  /* verilator lint_on UNUSEDPARAM */
) (
  input [lpm_width-1:0] data,
  output [lpm_width-1:0] result,
  output overflow);

  wire [lpm_width-1:0] negated = ~data + 1'b1;
  assign result = data[lpm_width-1] ? negated : data;
  // Only zero and the most negative value are their own negation; zero is not negative.
  assign overflow = data[lpm_width-1] && negated == data;
endmodule
