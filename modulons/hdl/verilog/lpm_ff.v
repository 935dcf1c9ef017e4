// Flip-flop register library module: D or T flip-flops with asynchronous and synchronous clear, set and load.
// String parameters are compared with literals of other widths; those comparisons are meant.
/* verilator lint_off WIDTH */
module lpm_ff #(
  parameter lpm_width = 1,
  parameter lpm_avalue = -1,  // the value aset gives; negative: all ones
  parameter lpm_svalue = -1,  // the value sset gives; negative: all ones
  parameter lpm_fftype = "DFF",
  /* verilator lint_off UNUSEDPARAM */
  parameter lpm_type = "LPM_FF",
  parameter lpm_hint = "UNUSED"
  /* verilator lint_on UNUSEDPARAM */
) (
  input [lpm_width-1:0] data,
  input clock,
`ifdef YOSYS
  input enable = 1'b1, input aclr = 1'b0, input aset = 1'b0, input aload = 1'b0, input sclr = 1'b0,
  input sset = 1'b0, input sload = 1'b0,
`elsif VERILATOR
  input tri1 enable,
  input tri0 aclr, aset, aload, sclr, sset, sload,
`else
  input enable, aclr, aset, aload, sclr, sset, sload,
`endif
  output [lpm_width-1:0] q);

  // Unconnected inputs: enable 1, the clears, sets and loads 0. The _p nets carry the inputs with those
  // defaults: nets pulled to them, so that a connected port stays an input; where a tool has no pulled nets
  // (Yosys) or pulls only ports (Verilator), the ports themselves carry the defaults (docs/hdl-models.md).
`ifdef YOSYS
  wire enable_p = enable;
  wire aclr_p = aclr, aset_p = aset, aload_p = aload, sclr_p = sclr, sset_p = sset, sload_p = sload;
`elsif VERILATOR
  wire enable_p = enable;
  wire aclr_p = aclr, aset_p = aset, aload_p = aload, sclr_p = sclr, sset_p = sset, sload_p = sload;
`else
  tri1 enable_p = enable;
  tri0 aclr_p = aclr, aset_p = aset, aload_p = aload, sclr_p = sclr, sset_p = sset, sload_p = sload;
`endif

  localparam [lpm_width-1:0] ones = {lpm_width{1'b1}};
  localparam [lpm_width-1:0] aset_value = (lpm_avalue < 0) ? ones : lpm_avalue;
  localparam [lpm_width-1:0] sset_value = (lpm_svalue < 0) ? ones : lpm_svalue;
  localparam toggle = lpm_fftype == "TFF";

  // The asynchronous inputs act when they rise and at every clock edge while they are high, aclr first.
  // A T flip-flop toggles the bits whose data bit is 1; its sload loads data instead.
  reg [lpm_width-1:0] value = {lpm_width{1'b0}};
  always @(posedge clock or posedge aclr_p or posedge aset_p or posedge aload_p)
    if (aclr_p) value <= {lpm_width{1'b0}};
    else if (aset_p) value <= aset_value;
    else if (aload_p) value <= data;
    else if (enable_p) begin
      if (sclr_p) value <= {lpm_width{1'b0}};
      else if (sset_p) value <= sset_value;
      else if (toggle && !sload_p) value <= value ^ data;
      else value <= data;
    end

  assign q = value;
endmodule
/* verilator lint_on WIDTH */
