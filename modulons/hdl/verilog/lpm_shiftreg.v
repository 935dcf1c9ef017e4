// Shift register library module: shifts left or right, loads in parallel, sets and clears.
// String parameters are compared with literals of other widths; those comparisons are meant.
/* verilator lint_off WIDTH */
module lpm_shiftreg #(
  parameter lpm_width = 1,
  parameter lpm_direction = "LEFT",
  /* verilator lint_off UNUSEDPARAM */
  parameter lpm_type = "LPM_SHIFTREG",
  parameter lpm_hint = "UNUSED"
  /* verilator lint_on UNUSEDPARAM */
) (
  input clock,
`ifdef YOSYS
  input [lpm_width-1:0] data = {lpm_width{1'b0}},
  input enable = 1'b1, input shiftin = 1'b1, input load = 1'b0, input aclr = 1'b0, input aset = 1'b0,
  input sclr = 1'b0, input sset = 1'b0,
`elsif VERILATOR
  input tri0 [lpm_width-1:0] data,
  input tri1 enable, shiftin,
  input tri0 load, aclr, aset, sclr, sset,
`else
  input [lpm_width-1:0] data,
  input enable, shiftin, load, aclr, aset, sclr, sset,
`endif
  output [lpm_width-1:0] q,
  output shiftout);

  // Unconnected inputs: enable and shiftin 1, the other controls and data 0. The _p nets carry the inputs with
  // those defaults: nets pulled to them, so that a connected port stays an input; where a tool has no pulled
  // nets (Yosys) or pulls only ports (Verilator), the ports themselves carry the defaults (docs/hdl-models.md).
`ifdef YOSYS
  wire [lpm_width-1:0] data_p = data;
  wire enable_p = enable, shiftin_p = shiftin;
  wire load_p = load, aclr_p = aclr, aset_p = aset, sclr_p = sclr, sset_p = sset;
`elsif VERILATOR
  wire [lpm_width-1:0] data_p = data;
  wire enable_p = enable, shiftin_p = shiftin;
  wire load_p = load, aclr_p = aclr, aset_p = aset, sclr_p = sclr, sset_p = sset;
`else
  tri0 [lpm_width-1:0] data_p = data;
  tri1 enable_p = enable, shiftin_p = shiftin;
  tri0 load_p = load, aclr_p = aclr, aset_p = aset, sclr_p = sclr, sset_p = sset;
`endif

  reg [lpm_width-1:0] value = {lpm_width{1'b0}};
  wire right = lpm_direction == "RIGHT";
  // Each shift drops one end of its extended vector.
  /* verilator lint_off UNUSEDSIGNAL */
  wire [lpm_width:0] left_shifted = {value, shiftin_p};
  wire [lpm_width:0] right_shifted = {shiftin_p, value};
  /* verilator lint_on UNUSEDSIGNAL */

  always @(posedge clock or posedge aclr_p or posedge aset_p)
    if (aclr_p) value <= {lpm_width{1'b0}};
    else if (aset_p) value <= {lpm_width{1'b1}};
    else if (enable_p) begin
      if (sclr_p) value <= {lpm_width{1'b0}};
      else if (sset_p) value <= {lpm_width{1'b1}};
      else if (load_p) value <= data_p;
      else value <= right ? right_shifted[lpm_width:1] : left_shifted[lpm_width-1:0];
    end

  assign q = value;
  assign shiftout = right ? value[0] : value[lpm_width-1];
endmodule
/* verilator lint_on WIDTH */
