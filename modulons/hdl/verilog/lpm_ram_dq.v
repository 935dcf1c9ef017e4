// Single-port memory library module: one address for reading and writing, registered or direct paths.
// String parameters are compared with literals of other widths; those comparisons are meant.
/* verilator lint_off WIDTH */
module lpm_ram_dq #(
  parameter lpm_width = 1,
  parameter lpm_widthad = 1,
  parameter lpm_numwords = 1 << lpm_widthad,
  parameter lpm_indata = "REGISTERED",
  parameter lpm_address_control = "REGISTERED",
  parameter lpm_outdata = "REGISTERED",
  /* verilator lint_off UNUSEDPARAM */
  parameter lpm_file = "UNUSED",
  parameter lpm_type = "LPM_RAM_DQ",
  parameter lpm_hint = "UNUSED"
  /* verilator lint_on UNUSEDPARAM */
) (
  input [lpm_width-1:0] data,
  input [lpm_widthad-1:0] address,
  input we,
`ifdef YOSYS
  input inclock = 1'b0, input outclock = 1'b0,
`elsif VERILATOR
  input tri0 inclock, outclock,
`else
  input inclock, outclock,
`endif
  output [lpm_width-1:0] q);

  // Unconnected clocks stay 0. The _p nets carry the inputs with those defaults: nets pulled to them, so that a
  // connected port stays an input; where a tool has no pulled nets (Yosys) or pulls only ports (Verilator), the
  // ports themselves carry the defaults (docs/hdl-models.md).
`ifdef YOSYS
  wire inclock_p = inclock, outclock_p = outclock;
`elsif VERILATOR
  wire inclock_p = inclock, outclock_p = outclock;
`else
  tri0 inclock_p = inclock, outclock_p = outclock;
`endif

  reg [lpm_width-1:0] memory [0:lpm_numwords-1];
  integer k;
  initial for (k = 0; k < lpm_numwords; k = k + 1) memory[k] = {lpm_width{1'b0}};

  // Inputs are taken at the rising edge of inclock when registered, else used directly.
  reg [lpm_widthad-1:0] address_reg = {lpm_widthad{1'b0}};
  always @(posedge inclock_p) address_reg <= address;
  wire [lpm_widthad-1:0] address_in = (lpm_address_control == "REGISTERED") ? address_reg : address;

  // With registered inputs the write happens at the clock edge; unregistered, while we is high.
  generate
    if (lpm_address_control == "REGISTERED") begin : clocked_write
      always @(posedge inclock_p)
        if (we) memory[address] <= data;
    end else begin : level_write
      // A transparent write: the memory follows data while we is high.
      reg [lpm_width-1:0] data_reg = {lpm_width{1'b0}};
      always @(posedge inclock_p) data_reg <= data;
      wire [lpm_width-1:0] data_in = (lpm_indata == "REGISTERED") ? data_reg : data;
      /* verilator lint_off LATCH */
      always @*
        if (we && address < lpm_numwords) memory[address] = data_in;
      /* verilator lint_on LATCH */
    end
  endgenerate

  wire [lpm_width-1:0] read = (address_in < lpm_numwords) ? memory[address_in] : {lpm_width{1'b0}};
  reg [lpm_width-1:0] q_reg = {lpm_width{1'b0}};
  always @(posedge outclock_p) q_reg <= read;
  assign q = (lpm_outdata == "REGISTERED") ? q_reg : read;
endmodule
/* verilator lint_on WIDTH */
