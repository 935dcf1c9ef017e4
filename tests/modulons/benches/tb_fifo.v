// Bench of the FIFO variations fifo64 (five 64-bit words, both clears, usedw, almost full from 4 and almost
// empty below 2), fifo1 (eight 1-bit words, show-ahead), dcfifo_sync (the dual-clock FIFO, eight 64-bit
// words, show-ahead, both clocks from the one clock so that each line is exact) and level (a FIFO of eight
// words whose almost_full comes from a comparator at 6), against vectors/fifo.vec; the outputs are compared
// after each line's clock edge.
module tb_fifo;
  reg clock = 1'b0;
  reg [63:0] fifo64_data;
  reg fifo64_wrreq;
  reg fifo64_rdreq;
  reg fifo64_aclr;
  reg fifo64_sclr;
  reg fifo1_data;
  reg fifo1_wrreq;
  reg fifo1_rdreq;
  reg [63:0] dcfifo_sync_data;
  reg dcfifo_sync_wrreq;
  reg dcfifo_sync_rdreq;
  reg dcfifo_sync_aclr;
  reg [7:0] level_data;
  reg level_wrreq;
  reg level_rdreq;
  reg level_aclr;
  wire [63:0] fifo64_q;
  reg [63:0] fifo64_q_want;
  wire fifo64_empty;
  reg fifo64_empty_want;
  wire fifo64_full;
  reg fifo64_full_want;
  wire [2:0] fifo64_usedw;
  reg [2:0] fifo64_usedw_want;
  wire fifo64_almost_full;
  reg fifo64_almost_full_want;
  wire fifo64_almost_empty;
  reg fifo64_almost_empty_want;
  wire fifo1_q;
  reg fifo1_q_want;
  wire fifo1_empty;
  reg fifo1_empty_want;
  wire fifo1_full;
  reg fifo1_full_want;
  wire [2:0] fifo1_usedw;
  reg [2:0] fifo1_usedw_want;
  wire [63:0] dcfifo_sync_q;
  reg [63:0] dcfifo_sync_q_want;
  wire dcfifo_sync_rdempty;
  reg dcfifo_sync_rdempty_want;
  wire dcfifo_sync_rdfull;
  reg dcfifo_sync_rdfull_want;
  wire [2:0] dcfifo_sync_rdusedw;
  reg [2:0] dcfifo_sync_rdusedw_want;
  wire dcfifo_sync_wrempty;
  reg dcfifo_sync_wrempty_want;
  wire dcfifo_sync_wrfull;
  reg dcfifo_sync_wrfull_want;
  wire [2:0] dcfifo_sync_wrusedw;
  reg [2:0] dcfifo_sync_wrusedw_want;
  wire [7:0] level_q;
  reg [7:0] level_q_want;
  wire level_empty;
  reg level_empty_want;
  wire level_full;
  reg level_full_want;
  wire [3:0] level_usedw;
  reg [3:0] level_usedw_want;
  wire level_almost_full;
  reg level_almost_full_want;
  bench_vectors v ();
  fifo64 fifo64_dut (.clock(clock), .data(fifo64_data), .wrreq(fifo64_wrreq), .rdreq(fifo64_rdreq),
    .aclr(fifo64_aclr), .sclr(fifo64_sclr), .q(fifo64_q), .empty(fifo64_empty), .full(fifo64_full),
    .usedw(fifo64_usedw), .almost_full(fifo64_almost_full), .almost_empty(fifo64_almost_empty));
  fifo1 fifo1_dut (.clock(clock), .data(fifo1_data), .wrreq(fifo1_wrreq), .rdreq(fifo1_rdreq), .q(fifo1_q),
    .empty(fifo1_empty), .full(fifo1_full), .usedw(fifo1_usedw));
  dcfifo_sync dcfifo_sync_dut (.wrclk(clock), .rdclk(clock), .data(dcfifo_sync_data),
    .wrreq(dcfifo_sync_wrreq), .rdreq(dcfifo_sync_rdreq), .aclr(dcfifo_sync_aclr), .q(dcfifo_sync_q),
    .rdempty(dcfifo_sync_rdempty), .rdfull(dcfifo_sync_rdfull), .rdusedw(dcfifo_sync_rdusedw),
    .wrempty(dcfifo_sync_wrempty), .wrfull(dcfifo_sync_wrfull), .wrusedw(dcfifo_sync_wrusedw));
  level level_dut (.clock(clock), .data(level_data), .wrreq(level_wrreq), .rdreq(level_rdreq),
    .aclr(level_aclr), .q(level_q), .empty(level_empty), .full(level_full), .usedw(level_usedw),
    .almost_full(level_almost_full));

  initial begin
    v.open;
    while (v.more(0)) begin
      v.values_read($fscanf(v.file, "%h %h %h %h %h %h %h %h %h %h %h %h %h %h %h %h %h %h %h %h",
                            fifo64_data, fifo64_wrreq, fifo64_rdreq, fifo64_aclr, fifo64_sclr, fifo1_data,
                            fifo1_wrreq, fifo1_rdreq, dcfifo_sync_data, dcfifo_sync_wrreq,
                            dcfifo_sync_rdreq, dcfifo_sync_aclr, level_data, level_wrreq, level_rdreq,
                            level_aclr, fifo64_q_want, fifo64_empty_want, fifo64_full_want,
                            fifo64_usedw_want), 20);
      v.values_read($fscanf(v.file, "%h %h %h %h %h %h %h %h %h %h %h %h %h %h %h %h %h %h\n",
                            fifo64_almost_full_want, fifo64_almost_empty_want, fifo1_q_want, fifo1_empty_want,
                            fifo1_full_want, fifo1_usedw_want, dcfifo_sync_q_want, dcfifo_sync_rdempty_want,
                            dcfifo_sync_rdfull_want, dcfifo_sync_rdusedw_want, dcfifo_sync_wrempty_want,
                            dcfifo_sync_wrfull_want, dcfifo_sync_wrusedw_want, level_q_want,
                            level_empty_want, level_full_want, level_usedw_want, level_almost_full_want),
                            18);
      #4 clock = 1'b1;
      #4;
      v.check("fifo64.q", fifo64_q, fifo64_q_want);
      v.check("fifo64.empty", fifo64_empty, fifo64_empty_want);
      v.check("fifo64.full", fifo64_full, fifo64_full_want);
      v.check("fifo64.usedw", fifo64_usedw, fifo64_usedw_want);
      v.check("fifo64.almost_full", fifo64_almost_full, fifo64_almost_full_want);
      v.check("fifo64.almost_empty", fifo64_almost_empty, fifo64_almost_empty_want);
      v.check("fifo1.q", fifo1_q, fifo1_q_want);
      v.check("fifo1.empty", fifo1_empty, fifo1_empty_want);
      v.check("fifo1.full", fifo1_full, fifo1_full_want);
      v.check("fifo1.usedw", fifo1_usedw, fifo1_usedw_want);
      v.check("dcfifo_sync.q", dcfifo_sync_q, dcfifo_sync_q_want);
      v.check("dcfifo_sync.rdempty", dcfifo_sync_rdempty, dcfifo_sync_rdempty_want);
      v.check("dcfifo_sync.rdfull", dcfifo_sync_rdfull, dcfifo_sync_rdfull_want);
      v.check("dcfifo_sync.rdusedw", dcfifo_sync_rdusedw, dcfifo_sync_rdusedw_want);
      v.check("dcfifo_sync.wrempty", dcfifo_sync_wrempty, dcfifo_sync_wrempty_want);
      v.check("dcfifo_sync.wrfull", dcfifo_sync_wrfull, dcfifo_sync_wrfull_want);
      v.check("dcfifo_sync.wrusedw", dcfifo_sync_wrusedw, dcfifo_sync_wrusedw_want);
      v.check("level.q", level_q, level_q_want);
      v.check("level.empty", level_empty, level_empty_want);
      v.check("level.full", level_full, level_full_want);
      v.check("level.usedw", level_usedw, level_usedw_want);
      v.check("level.almost_full", level_almost_full, level_almost_full_want);
      #1 clock = 1'b0;
      #1;
      v.next;
    end
    v.finish;
  end
endmodule
