// Dual-clock FIFO library module: words written at wrclk are read back in order at rdclk. Each side keeps its
// position and sees the other's through a chain of registers, in Gray code so that a position caught while it
// changes is either the old or the new one; each side has its own empty, full and used-words outputs.
// String parameters are compared with literals of other widths; those comparisons are meant.
/* verilator lint_off WIDTH */
module dcfifo #(
  parameter lpm_width = 1,
  parameter lpm_numwords = 2,  // at most 2 ** lpm_widthu
  parameter lpm_widthu = 1,
  parameter lpm_showahead = "OFF",
  parameter rdsync_delaypipe = 3,  // registers carrying the write position to the read side
  parameter wrsync_delaypipe = 3,  // registers carrying the read position to the write side
  /* verilator lint_off UNUSEDPARAM */
  parameter lpm_type = "dcfifo",
  parameter lpm_hint = "UNUSED"
  /* verilator lint_on UNUSEDPARAM */
) (
  input [lpm_width-1:0] data,
  input wrclk, wrreq, rdclk, rdreq,
`ifdef YOSYS
  input aclr = 1'b0,
`elsif VERILATOR
  input tri0 aclr,
`else
  input aclr,
`endif
  output [lpm_width-1:0] q,
  output rdempty, rdfull,
  output [lpm_widthu-1:0] rdusedw,
  output wrempty, wrfull,
  output [lpm_widthu-1:0] wrusedw);

  // Unconnected inputs: aclr 0. The _p nets carry the inputs with those defaults: nets pulled to them, so that
  // a connected port stays an input; where a tool has no pulled nets (Yosys) or pulls only ports (Verilator),
  // the ports themselves carry the defaults (docs/hdl-models.md).
`ifdef YOSYS
  wire aclr_p = aclr;
`elsif VERILATOR
  wire aclr_p = aclr;
`else
  tri0 aclr_p = aclr;
`endif

  // Positions count words modulo 2 ** (lpm_widthu + 1): one bit more than the address, so that a full FIFO
  // and an empty one differ.
  localparam bits = lpm_widthu + 1;

  function [bits-1:0] to_gray(input [bits-1:0] value);
    to_gray = value ^ (value >> 1);
  endfunction

  function [bits-1:0] from_gray(input [bits-1:0] gray);
    integer i;
    begin
      from_gray[bits-1] = gray[bits-1];
      for (i = bits - 2; i >= 0; i = i - 1) from_gray[i] = from_gray[i+1] ^ gray[i];
    end
  endfunction

  reg [lpm_width-1:0] memory [0:(1 << lpm_widthu)-1];
  integer k;
  initial for (k = 0; k < (1 << lpm_widthu); k = k + 1) memory[k] = {lpm_width{1'b0}};

  // The write side.
  reg [bits-1:0] write_at = 0, write_gray = 0;
  reg [wrsync_delaypipe*bits-1:0] read_chain = 0;  // the read position in Gray code, newest lowest
  wire [(wrsync_delaypipe+1)*bits-1:0] read_shift = {read_chain, read_gray};
  wire [bits-1:0] write_used = write_at - from_gray(read_shift[(wrsync_delaypipe+1)*bits-1 -: bits]);
  assign wrempty = write_used == 0;
  assign wrfull = write_used == lpm_numwords;
  assign wrusedw = write_used[lpm_widthu-1:0];
  wire write = wrreq && !wrfull && !aclr_p;

  always @(posedge wrclk)
    if (write) memory[write_at[lpm_widthu-1:0]] <= data;

  always @(posedge wrclk or posedge aclr_p)
    if (aclr_p) begin
      write_at <= 0;
      write_gray <= 0;
      read_chain <= 0;
    end else begin
      read_chain <= read_shift[wrsync_delaypipe*bits-1:0];
      if (write) begin
        write_at <= write_at + 1'b1;
        write_gray <= to_gray(write_at + 1'b1);
      end
    end

  // The read side; without show-ahead q takes the word read at the clock edge, with it q shows the oldest word.
  reg [bits-1:0] read_at = 0, read_gray = 0;
  reg [rdsync_delaypipe*bits-1:0] write_chain = 0;  // the write position in Gray code, newest lowest
  wire [(rdsync_delaypipe+1)*bits-1:0] write_shift = {write_chain, write_gray};
  wire [bits-1:0] read_used = from_gray(write_shift[(rdsync_delaypipe+1)*bits-1 -: bits]) - read_at;
  assign rdempty = read_used == 0;
  assign rdfull = read_used == lpm_numwords;
  assign rdusedw = read_used[lpm_widthu-1:0];
  wire read = rdreq && !rdempty;

  reg [lpm_width-1:0] q_reg = {lpm_width{1'b0}};
  always @(posedge rdclk or posedge aclr_p)
    if (aclr_p) begin
      read_at <= 0;
      read_gray <= 0;
      write_chain <= 0;
      q_reg <= {lpm_width{1'b0}};
    end else begin
      write_chain <= write_shift[rdsync_delaypipe*bits-1:0];
      if (read) begin
        read_at <= read_at + 1'b1;
        read_gray <= to_gray(read_at + 1'b1);
        q_reg <= memory[read_at[lpm_widthu-1:0]];
      end
    end

  assign q = (lpm_showahead == "ON") ? memory[read_at[lpm_widthu-1:0]] : q_reg;
endmodule
/* verilator lint_on WIDTH */
