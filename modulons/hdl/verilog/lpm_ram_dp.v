// Dual-port memory library module: writes at the write clock, reads at its own address, registered at the read
// clock or direct.
// String parameters are compared with literals of other widths; those comparisons are meant.
/* verilator lint_off WIDTH */
module lpm_ram_dp #(
  parameter lpm_width = 1,
  parameter lpm_widthad = 1,
  parameter lpm_numwords = 1 << lpm_widthad,
  parameter lpm_rdaddress_control = "REGISTERED",
  parameter lpm_outdata = "REGISTERED",
  /* verilator lint_off UNUSEDPARAM */
  parameter lpm_type = "LPM_RAM_DP",
  parameter lpm_hint = "UNUSED"
  /* verilator lint_on UNUSEDPARAM */
) (
  input [lpm_width-1:0] data,
  input [lpm_widthad-1:0] wraddress, rdaddress,
  input wren, wrclock,
`ifdef YOSYS
  input rden = 1'b1, input wrclken = 1'b1, input rdclken = 1'b1, input rdclock = 1'b0,
`elsif VERILATOR
  input tri1 rden, wrclken, rdclken,
  input tri0 rdclock,
`else
  input rden, wrclken, rdclken, rdclock,
`endif
  output [lpm_width-1:0] q);

  // Unconnected inputs: rden, wrclken and rdclken 1, rdclock 0. The _p nets carry the inputs with those
  // defaults: nets pulled to them, so that a connected port stays an input; where a tool has no pulled nets
  // (Yosys) or pulls only ports (Verilator), the ports themselves carry the defaults (docs/hdl-models.md).
`ifdef YOSYS
  wire rden_p = rden, wrclken_p = wrclken, rdclken_p = rdclken;
  wire rdclock_p = rdclock;
`elsif VERILATOR
  wire rden_p = rden, wrclken_p = wrclken, rdclken_p = rdclken;
  wire rdclock_p = rdclock;
`else
  tri1 rden_p = rden, wrclken_p = wrclken, rdclken_p = rdclken;
  tri0 rdclock_p = rdclock;
`endif

  reg [lpm_width-1:0] memory [0:lpm_numwords-1];
  integer k;
  initial for (k = 0; k < lpm_numwords; k = k + 1) memory[k] = {lpm_width{1'b0}};

  // A write takes data at the rising edge of wrclock while wren and wrclken are high.
  always @(posedge wrclock)
    if (wren && wrclken_p && wraddress < lpm_numwords) memory[wraddress] <= data;

  // The read address and q are taken at the rising edge of rdclock while rden and rdclken are high when they
  // are registered, else used directly.
  reg [lpm_widthad-1:0] address_reg = {lpm_widthad{1'b0}};
  reg [lpm_width-1:0] q_reg = {lpm_width{1'b0}};
  wire [lpm_widthad-1:0] address_in = (lpm_rdaddress_control == "REGISTERED") ? address_reg : rdaddress;
  wire [lpm_width-1:0] read = (address_in < lpm_numwords) ? memory[address_in] : {lpm_width{1'b0}};
  always @(posedge rdclock_p)
    if (rden_p && rdclken_p) begin
      address_reg <= rdaddress;
      q_reg <= read;
    end
  assign q = (lpm_outdata == "REGISTERED") ? q_reg : read;
endmodule
/* verilator lint_on WIDTH */
