// Bench of the composite variation ticker (a 4-bit counter feeding a comparator against 5, with aclr).
module tb_ticker;
  reg clock = 0, aclr = 0;
  wire [3:0] q;
  wire match, above;
  integer expected = 0, cycle, errors = 0;

  ticker dut (.clock(clock), .aclr(aclr), .q(q), .match(match), .above(above));

  initial begin
    aclr = 1;
    #1 aclr = 0;
    for (cycle = 0; cycle < 36; cycle = cycle + 1) begin
      #1 if (q !== expected || match !== (expected == 5) || above !== (expected > 5)) begin
        $display("FAIL cycle %0d: q=%0d match=%b above=%b", cycle, q, match, above);
        errors = errors + 1;
      end
      clock = 1;
      #1 clock = 0;
      expected = (expected + 1) % 16;
    end
    if (errors == 0) $display("PASS");
    $finish;
  end
endmodule
