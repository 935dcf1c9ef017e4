// Single-clock FIFO library module: words written with wrreq are read back in order with rdreq, with empty,
// full, almost full and almost empty flags and the number of words held.
// String parameters are compared with literals of other widths; those comparisons are meant.
/* verilator lint_off WIDTH */
module scfifo #(
  parameter lpm_width = 1,
  parameter lpm_numwords = 2,
  parameter lpm_widthu = 1,
  parameter lpm_showahead = "OFF",
  parameter almost_full_value = 0,
  parameter almost_empty_value = 0,
  /* verilator lint_off UNUSEDPARAM */
  parameter lpm_type = "scfifo",
  parameter lpm_hint = "UNUSED"
  /* verilator lint_on UNUSEDPARAM */
) (
  input [lpm_width-1:0] data,
  input clock, wrreq, rdreq,
`ifdef YOSYS
  input aclr = 1'b0, input sclr = 1'b0,
`elsif VERILATOR
  input tri0 aclr, sclr,
`else
  input aclr, sclr,
`endif
  output [lpm_width-1:0] q,
  output empty, full, almost_full, almost_empty,
  output [lpm_widthu-1:0] usedw);

  // Unconnected inputs: aclr and sclr 0. The _p nets carry the inputs with those defaults: nets pulled to them,
  // so that a connected port stays an input; where a tool has no pulled nets (Yosys) or pulls only ports
  // (Verilator), the ports themselves carry the defaults (docs/hdl-models.md).
`ifdef YOSYS
  wire aclr_p = aclr, sclr_p = sclr;
`elsif VERILATOR
  wire aclr_p = aclr, sclr_p = sclr;
`else
  tri0 aclr_p = aclr, sclr_p = sclr;
`endif

  reg [lpm_width-1:0] memory [0:lpm_numwords-1];
  integer k;
  initial for (k = 0; k < lpm_numwords; k = k + 1) memory[k] = {lpm_width{1'b0}};

  // Read and write positions and the number of words held; a write is refused when full, a read when empty.
  reg [lpm_widthu:0] count = 0;
  reg [lpm_widthu:0] write_at = 0, read_at = 0;
  wire write = wrreq && count != lpm_numwords && !sclr_p;
  wire read = rdreq && count != 0 && !sclr_p;
  wire [lpm_widthu:0] write_next = (write_at == lpm_numwords - 1) ? 0 : write_at + 1;
  wire [lpm_widthu:0] read_next = (read_at == lpm_numwords - 1) ? 0 : read_at + 1;

  always @(posedge clock)
    if (write) memory[write_at] <= data;

  // Without show-ahead q takes the word read at the clock edge; with it, q shows the oldest word.
  reg [lpm_width-1:0] q_reg = {lpm_width{1'b0}};
  always @(posedge clock or posedge aclr_p)
    if (aclr_p) begin
      count <= 0;
      write_at <= 0;
      read_at <= 0;
      q_reg <= {lpm_width{1'b0}};
    end else if (sclr_p) begin
      count <= 0;
      write_at <= 0;
      read_at <= 0;
      q_reg <= {lpm_width{1'b0}};
    end else begin
      if (write) write_at <= write_next;
      if (read) begin
        read_at <= read_next;
        q_reg <= memory[read_at];
      end
      count <= count + write - read;
    end

  assign q = (lpm_showahead == "ON") ? memory[read_at] : q_reg;
  assign empty = count == 0;
  assign full = count == lpm_numwords;
  // With the values at 0 these two flags are constant.
  /* verilator lint_off UNSIGNED */
  assign almost_full = count >= almost_full_value;
  assign almost_empty = count < almost_empty_value;
  /* verilator lint_on UNSIGNED */
  assign usedw = count[lpm_widthu-1:0];
endmodule
/* verilator lint_on WIDTH */
