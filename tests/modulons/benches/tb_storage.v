// Bench of the storage variations dff64 (64 D flip-flops with enable, every asynchronous control, sclr, and
// sset to 1234567), tff1 (one T flip-flop with enable, aclr, sset to 0 and sload), latch64 (aclr, aset to
// 2147483647) and latch1, against vectors/storage.vec; the outputs are compared after each line's clock edge.
module tb_storage;
  reg clock = 1'b0;
  reg [63:0] dff64_data;
  reg dff64_enable;
  reg dff64_aclr;
  reg dff64_aset;
  reg dff64_aload;
  reg dff64_sclr;
  reg dff64_sset;
  reg tff1_data;
  reg tff1_enable;
  reg tff1_aclr;
  reg tff1_sset;
  reg tff1_sload;
  reg [63:0] latch64_data;
  reg latch64_gate;
  reg latch64_aclr;
  reg latch64_aset;
  reg latch1_data;
  reg latch1_gate;
  wire [63:0] dff64_q;
  reg [63:0] dff64_q_want;
  wire tff1_q;
  reg tff1_q_want;
  wire [63:0] latch64_q;
  reg [63:0] latch64_q_want;
  wire latch1_q;
  reg latch1_q_want;
  bench_vectors v ();
  dff64 dff64_dut (.clock(clock), .data(dff64_data), .enable(dff64_enable), .aclr(dff64_aclr),
    .aset(dff64_aset), .aload(dff64_aload), .sclr(dff64_sclr), .sset(dff64_sset), .q(dff64_q));
  tff1 tff1_dut (.clock(clock), .data(tff1_data), .enable(tff1_enable), .aclr(tff1_aclr), .sset(tff1_sset),
    .sload(tff1_sload), .q(tff1_q));
  latch64 latch64_dut (.data(latch64_data), .gate(latch64_gate), .aclr(latch64_aclr), .aset(latch64_aset),
    .q(latch64_q));
  latch1 latch1_dut (.data(latch1_data), .gate(latch1_gate), .q(latch1_q));

  initial begin
    v.open;
    while (v.more(0)) begin
      v.values_read($fscanf(v.file, "%h %h %h %h %h %h %h %h %h %h %h %h %h %h %h %h %h %h %h %h",
                            dff64_data, dff64_enable, dff64_aclr, dff64_aset, dff64_aload, dff64_sclr,
                            dff64_sset, tff1_data, tff1_enable, tff1_aclr, tff1_sset, tff1_sload,
                            latch64_data, latch64_gate, latch64_aclr, latch64_aset, latch1_data,
                            latch1_gate, dff64_q_want, tff1_q_want), 20);
      v.values_read($fscanf(v.file, "%h %h\n",
                            latch64_q_want, latch1_q_want), 2);
      #4 clock = 1'b1;
      #4;
      v.check("dff64.q", dff64_q, dff64_q_want);
      v.check("tff1.q", tff1_q, tff1_q_want);
      v.check("latch64.q", latch64_q, latch64_q_want);
      v.check("latch1.q", latch1_q, latch1_q_want);
      #1 clock = 1'b0;
      #1;
      v.next;
    end
    v.finish;
  end
endmodule
