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
`elsif VERILATOR
  // In Verilator the ports themselves are pulled.
  input tri0 enabletr,
  input tri0 enabledt,
`else
  // Simulators pull the nets the ports feed (below), so that a connected port stays an input.
  input enabletr, enabledt,
`endif
  output [lpm_width-1:0] result);

  // The inputs with their defaults when unconnected.
`ifdef YOSYS
  wire enabletr_p = enabletr, enabledt_p = enabledt;
`elsif VERILATOR
  wire enabletr_p = enabletr, enabledt_p = enabledt;
`else
  tri0 enabletr_p = enabletr, enabledt_p = enabledt;
`endif

  // One tri-state buffer per bit and direction.
  genvar i;
  generate
    for (i = 0; i < lpm_width; i = i + 1) begin : bit_drivers
      bufif1 to_bus (tridata[i], data[i], enabledt_p);
      bufif1 from_bus (result[i], tridata[i], enabletr_p);
    end
  endgenerate
endmodule
