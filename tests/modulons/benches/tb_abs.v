// Bench of the absolute value variations abs1, abs8 and abs64, against vectors/abs.vec.
module tb_abs;
  reg abs1_data;
  reg [7:0] abs8_data;
  reg [63:0] abs64_data;
  wire abs1_result;
  reg abs1_result_want;
  wire abs1_overflow;
  reg abs1_overflow_want;
  wire [7:0] abs8_result;
  reg [7:0] abs8_result_want;
  wire abs8_overflow;
  reg abs8_overflow_want;
  wire [63:0] abs64_result;
  reg [63:0] abs64_result_want;
  wire abs64_overflow;
  reg abs64_overflow_want;
  bench_vectors v ();
  abs1 abs1_dut (.data(abs1_data), .result(abs1_result), .overflow(abs1_overflow));
  abs8 abs8_dut (.data(abs8_data), .result(abs8_result), .overflow(abs8_overflow));
  abs64 abs64_dut (.data(abs64_data), .result(abs64_result), .overflow(abs64_overflow));

  initial begin
    v.open;
    while (v.more(0)) begin
      v.values_read($fscanf(v.file, "%h %h %h %h %h %h %h %h %h\n",
                            abs1_data, abs8_data, abs64_data, abs1_result_want, abs1_overflow_want,
                            abs8_result_want, abs8_overflow_want, abs64_result_want, abs64_overflow_want), 9);
      #1;
      v.check("abs1.result", abs1_result, abs1_result_want);
      v.check("abs1.overflow", abs1_overflow, abs1_overflow_want);
      v.check("abs8.result", abs8_result, abs8_result_want);
      v.check("abs8.overflow", abs8_overflow, abs8_overflow_want);
      v.check("abs64.result", abs64_result, abs64_result_want);
      v.check("abs64.overflow", abs64_overflow, abs64_overflow_want);
      v.next;
    end
    v.finish;
  end
endmodule
