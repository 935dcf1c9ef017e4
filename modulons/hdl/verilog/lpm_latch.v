// Latch library module: q follows data while gate is high and holds it while gate is low; asynchronous clear
// and set.
/* verilator lint_off WIDTH */
module lpm_latch #(
  parameter lpm_width = 1,
  parameter lpm_avalue = -1,  // the value aset gives; negative: all ones
  /* verilator lint_off UNUSEDPARAM */
  parameter lpm_type = "LPM_LATCH",
  parameter lpm_hint = "UNUSED"
  /* verilator lint_on UNUSEDPARAM */
) (
  input [lpm_width-1:0] data,
  input gate,
`ifdef YOSYS
  input aclr = 1'b0, input aset = 1'b0,
`elsif VERILATOR
  input tri0 aclr, aset,
`else
  input aclr, aset,
`endif
  output [lpm_width-1:0] q);

  // Unconnected inputs: aclr and aset 0. The _p nets carry the inputs with those defaults: nets pulled to them,
  // so that a connected port stays an input; where a tool has no pulled nets (Yosys) or pulls only ports
  // (Verilator), the ports themselves carry the defaults (docs/hdl-models.md).
`ifdef YOSYS
  wire aclr_p = aclr, aset_p = aset;
`elsif VERILATOR
  wire aclr_p = aclr, aset_p = aset;
`else
  tri0 aclr_p = aclr, aset_p = aset;
`endif

  localparam [lpm_width-1:0] aset_value = (lpm_avalue < 0) ? {lpm_width{1'b1}} : lpm_avalue;

  // A latch by design: value keeps its last value while gate is low.
  reg [lpm_width-1:0] value = {lpm_width{1'b0}};
  /* verilator lint_off LATCH */
  always @*
    if (aclr_p) value = {lpm_width{1'b0}};
    else if (aset_p) value = aset_value;
    else if (gate) value = data;
  /* verilator lint_on LATCH */

  assign q = value;
endmodule
/* verilator lint_on WIDTH */
