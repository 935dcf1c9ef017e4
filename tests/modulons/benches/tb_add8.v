// Bench of the adder/subtractor variation add8 (8 bits, signed, add_sub input, cout and overflow).
module tb_add8;
  reg [7:0] dataa, datab;
  reg add_sub;
  wire [7:0] result;
  wire cout, overflow;
  integer a, b, op, sum, errors = 0, steps = 0;
  reg [7:0] want;
  reg want_cout, want_overflow;

  add8 dut (.dataa(dataa), .datab(datab), .add_sub(add_sub), .result(result), .cout(cout), .overflow(overflow));

  initial begin
    for (op = 0; op < 2; op = op + 1)
      for (a = 0; a < 256; a = a + 17)
        for (b = 0; b < 256; b = b + 13) begin
          dataa = a;
          datab = b;
          add_sub = op;
          sum = op ? a + b : a - b;
          want = sum;
          want_cout = op ? (a + b > 255) : (a >= b);
          want_overflow = op ? (dataa[7] == datab[7] && want[7] != dataa[7])
                             : (dataa[7] != datab[7] && want[7] != dataa[7]);
          #1 steps = steps + 1;
          if (result !== want || cout !== want_cout || overflow !== want_overflow) begin
            $display("FAIL %0d %s %0d: result=%0d cout=%b overflow=%b", a, op ? "+" : "-", b, result, cout,
                     overflow);
            errors = errors + 1;
          end
        end
    if (errors == 0 && steps > 0) $display("PASS");
    $finish;
  end
endmodule
