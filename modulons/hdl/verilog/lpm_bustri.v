// Tri-state bus driver library module: data drives tridata while enabledt is high, and result follows tridata
// while enabletr is high; otherwise each is released (high impedance). An unconnected enable is low.
module lpm_bustri #(
  parameter lpm_width = 1,
  /* verilator lint_off UNUSEDPARAM */
  parameter lpm_type = "LPM_BUSTRI",
  parameter lpm_hint = "UNUSED"
  /* verilator lint_on UNUSEDPARAM */
) (
  inout [lpm_width-1:0] tridata,
  input [lpm_width-1:0] data,
`ifdef YOSYS
  // Yosys has no pulled nets; its hierarchy pass gives an unconnected input the default declared here.
  input enabletr = 1'b0,
  input enabledt = 1'b0,
`else
  // An unconnected input is pulled to its default.
  input tri0 enabletr,
  input tri0 enabledt,
`endif
  output [lpm_width-1:0] result);

  // One tri-state buffer per bit and direction.
  genvar i;
  generate
    for (i = 0; i < lpm_width; i = i + 1) begin : bit_drivers
      bufif1 to_bus (tridata[i], data[i], enabledt);
      bufif1 from_bus (result[i], tridata[i], enabletr);
    end
  endgenerate
endmodule
