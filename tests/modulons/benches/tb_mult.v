// Bench of the multiplier variations mult_u8 (unsigned, top 12 bits of the product), mult_s8x6_p3 (signed,
// pipeline 3 with clken and aclr), mult_s64 (signed 64 x 64) and mult_u1_p3 (one bit, pipeline 3), against
// vectors/mult.vec.
module tb_mult;
  reg clock = 1'b0;
  reg [7:0] mult_u8_dataa;
  reg [7:0] mult_u8_datab;
  reg [7:0] mult_s8x6_p3_dataa;
  reg [5:0] mult_s8x6_p3_datab;
  reg mult_s8x6_p3_clken;
  reg mult_s8x6_p3_aclr;
  reg [63:0] mult_s64_dataa;
  reg [63:0] mult_s64_datab;
  reg mult_u1_p3_dataa;
  reg mult_u1_p3_datab;
  wire [11:0] mult_u8_result;
  reg [11:0] mult_u8_result_want;
  wire [13:0] mult_s8x6_p3_result;
  reg [13:0] mult_s8x6_p3_result_want;
  wire [127:0] mult_s64_result;
  reg [127:0] mult_s64_result_want;
  wire [1:0] mult_u1_p3_result;
  reg [1:0] mult_u1_p3_result_want;
  bench_vectors v ();
  mult_u8 mult_u8_dut (.dataa(mult_u8_dataa), .datab(mult_u8_datab), .result(mult_u8_result));
  mult_s8x6_p3 mult_s8x6_p3_dut (.dataa(mult_s8x6_p3_dataa), .datab(mult_s8x6_p3_datab),
    .clken(mult_s8x6_p3_clken), .aclr(mult_s8x6_p3_aclr), .clock(clock), .result(mult_s8x6_p3_result));
  mult_s64 mult_s64_dut (.dataa(mult_s64_dataa), .datab(mult_s64_datab), .result(mult_s64_result));
  mult_u1_p3 mult_u1_p3_dut (.dataa(mult_u1_p3_dataa), .datab(mult_u1_p3_datab), .clock(clock),
    .result(mult_u1_p3_result));

  initial begin
    v.open;
    while (v.more(0)) begin
      v.values_read($fscanf(v.file, "%h %h %h %h %h %h %h %h %h %h %h %h %h %h\n",
                            mult_u8_dataa, mult_u8_datab, mult_s8x6_p3_dataa, mult_s8x6_p3_datab,
                            mult_s8x6_p3_clken, mult_s8x6_p3_aclr, mult_s64_dataa, mult_s64_datab,
                            mult_u1_p3_dataa, mult_u1_p3_datab, mult_u8_result_want, mult_s8x6_p3_result_want,
                            mult_s64_result_want, mult_u1_p3_result_want), 14);
      #1;
      v.check("mult_u8.result", mult_u8_result, mult_u8_result_want);
      v.check("mult_s8x6_p3.result", mult_s8x6_p3_result, mult_s8x6_p3_result_want);
      v.check("mult_s64.result", mult_s64_result, mult_s64_result_want);
      v.check("mult_u1_p3.result", mult_u1_p3_result, mult_u1_p3_result_want);
      clock = 1'b1;
      #1 clock = 1'b0;
      v.next;
    end
    v.finish;
  end
endmodule
