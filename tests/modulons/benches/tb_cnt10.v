// Bench of the counter variation cnt10 (4 bits, up, modulus 10, aclr, active-low cnt_en_n, cout).
module tb_cnt10;
  reg clock = 0, aclr = 0, cnt_en_n = 0;
  wire [3:0] q;
  wire cout;
  integer expected = 0, cycle, errors = 0;

  cnt10 dut (.clock(clock), .aclr(aclr), .cnt_en_n(cnt_en_n), .q(q), .cout(cout));

  task check;
    begin
      if (q !== expected || cout !== (expected == 9)) begin
        $display("FAIL cycle %0d: q=%b cout=%b, expected %0d", cycle, q, cout, expected);
        errors = errors + 1;
      end
    end
  endtask

  initial begin
    aclr = 1;
    #1 aclr = 0;
    for (cycle = 0; cycle < 40; cycle = cycle + 1) begin
      cnt_en_n = (cycle % 7 == 3);
      #1 check;
      clock = 1;
      #1 clock = 0;
      if (!cnt_en_n) expected = (expected + 1) % 10;
    end
    #1 check;
    aclr = 1;
    #1 expected = 0;
    check;
    if (errors == 0) $display("PASS");
    $finish;
  end
endmodule
