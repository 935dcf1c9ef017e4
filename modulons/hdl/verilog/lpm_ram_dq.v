// Single-port memory library module: one address for reading and writing, registered or direct paths.
// String parameters are compared with literals of other widths; those comparisons are meant.
/* verilator lint_off WIDTH */
module lpm_ram_dq (data, address, we, inclock, outclock, q);
  parameter lpm_width = 1;
  parameter lpm_widthad = 1;
  parameter lpm_numwords = 1 << lpm_widthad;
  parameter lpm_indata = "REGISTERED";
  parameter lpm_address_control = "REGISTERED";
  parameter lpm_outdata = "REGISTERED";
  parameter lpm_file = "UNUSED";
  parameter lpm_type = "LPM_RAM_DQ";
  parameter lpm_hint = "UNUSED";

  input [lpm_width-1:0] data;
  input [lpm_widthad-1:0] address;
  input we, inclock, outclock;
  output [lpm_width-1:0] q;

  tri0 inclock, outclock;

  reg [lpm_width-1:0] memory [0:lpm_numwords-1];
  integer k;
  initial for (k = 0; k < lpm_numwords; k = k + 1) memory[k] = {lpm_width{1'b0}};

  // Inputs are taken at the rising edge of inclock when registered, else used directly.
  reg [lpm_width-1:0] data_reg = {lpm_width{1'b0}};
  reg [lpm_widthad-1:0] address_reg = {lpm_widthad{1'b0}};
  reg we_reg = 1'b0;
  always @(posedge inclock) begin
    data_reg <= data;
    address_reg <= address;
    we_reg <= we;
  end
  wire [lpm_width-1:0] data_in = (lpm_indata == "REGISTERED") ? data_reg : data;
  wire [lpm_widthad-1:0] address_in = (lpm_address_control == "REGISTERED") ? address_reg : address;
  wire we_in = (lpm_address_control == "REGISTERED") ? we_reg : we;

  // With registered inputs the write happens at the clock edge; unregistered, while we is high.
  always @(posedge inclock)
    if (lpm_address_control == "REGISTERED" && we)
      memory[address] <= (lpm_indata == "REGISTERED") ? data : data_in;
  always @*
    if (lpm_address_control != "REGISTERED" && we_in && address_in < lpm_numwords)
      memory[address_in] = data_in;

  wire [lpm_width-1:0] read = (address_in < lpm_numwords) ? memory[address_in] : {lpm_width{1'b0}};
  reg [lpm_width-1:0] q_reg = {lpm_width{1'b0}};
  always @(posedge outclock) q_reg <= read;
  assign q = (lpm_outdata == "REGISTERED") ? q_reg : read;
endmodule
