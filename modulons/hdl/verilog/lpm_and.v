// AND gate library module: result[j] is the AND of bit j of the lpm_size words of the flattened data bus
// (word k at bits k*lpm_width).
module lpm_and #(
  parameter lpm_width = 1,
  parameter lpm_size = 1,
  /* verilator lint_off UNUSEDPARAM */
  parameter lpm_type = "LPM_AND",
  parameter lpm_hint = "UNUSED"
  /* verilator lint_on UNUSEDPARAM */
) (
  input [lpm_size*lpm_width-1:0] data,
  output [lpm_width-1:0] result);

  reg [lpm_width-1:0] gate;
  integer k;
  always @* begin
    gate = {lpm_width{1'b1}};
    for (k = 0; k < lpm_size; k = k + 1) gate = gate & data[k*lpm_width +: lpm_width];
  end
  assign result = gate;
endmodule
