// Bench of the divider variations div_u8x4 (unsigned), div_s16x8_p3 (signed, remainder with the numerator's
// sign, pipeline 3 with clken and aclr), div_s64 (signed 64 / 64) and div_u1_p3 (one bit, pipeline 3),
// against vectors/divide.vec.
module tb_divide;
  reg clock = 1'b0;
  reg [7:0] div_u8x4_numer;
  reg [3:0] div_u8x4_denom;
  reg [15:0] div_s16x8_p3_numer;
  reg [7:0] div_s16x8_p3_denom;
  reg div_s16x8_p3_clken;
  reg div_s16x8_p3_aclr;
  reg [63:0] div_s64_numer;
  reg [63:0] div_s64_denom;
  reg div_u1_p3_numer;
  reg div_u1_p3_denom;
  wire [7:0] div_u8x4_quotient;
  reg [7:0] div_u8x4_quotient_want;
  wire [3:0] div_u8x4_remain;
  reg [3:0] div_u8x4_remain_want;
  wire [15:0] div_s16x8_p3_quotient;
  reg [15:0] div_s16x8_p3_quotient_want;
  wire [7:0] div_s16x8_p3_remain;
  reg [7:0] div_s16x8_p3_remain_want;
  wire [63:0] div_s64_quotient;
  reg [63:0] div_s64_quotient_want;
  wire [63:0] div_s64_remain;
  reg [63:0] div_s64_remain_want;
  wire div_u1_p3_quotient;
  reg div_u1_p3_quotient_want;
  wire div_u1_p3_remain;
  reg div_u1_p3_remain_want;
  bench_vectors v ();
  div_u8x4 div_u8x4_dut (.numer(div_u8x4_numer), .denom(div_u8x4_denom), .quotient(div_u8x4_quotient),
    .remain(div_u8x4_remain));
  div_s16x8_p3 div_s16x8_p3_dut (.numer(div_s16x8_p3_numer), .denom(div_s16x8_p3_denom),
    .clken(div_s16x8_p3_clken), .aclr(div_s16x8_p3_aclr), .clock(clock), .quotient(div_s16x8_p3_quotient),
    .remain(div_s16x8_p3_remain));
  div_s64 div_s64_dut (.numer(div_s64_numer), .denom(div_s64_denom), .quotient(div_s64_quotient),
    .remain(div_s64_remain));
  div_u1_p3 div_u1_p3_dut (.numer(div_u1_p3_numer), .denom(div_u1_p3_denom), .clock(clock),
    .quotient(div_u1_p3_quotient), .remain(div_u1_p3_remain));

  initial begin
    v.open;
    while (v.more(0)) begin
      v.values_read($fscanf(v.file, "%h %h %h %h %h %h %h %h %h %h %h %h %h %h %h %h %h %h\n",
                            div_u8x4_numer, div_u8x4_denom, div_s16x8_p3_numer, div_s16x8_p3_denom,
                            div_s16x8_p3_clken, div_s16x8_p3_aclr, div_s64_numer, div_s64_denom,
                            div_u1_p3_numer, div_u1_p3_denom, div_u8x4_quotient_want, div_u8x4_remain_want,
                            div_s16x8_p3_quotient_want, div_s16x8_p3_remain_want, div_s64_quotient_want,
                            div_s64_remain_want, div_u1_p3_quotient_want, div_u1_p3_remain_want), 18);
      #1;
      v.check("div_u8x4.quotient", div_u8x4_quotient, div_u8x4_quotient_want);
      v.check("div_u8x4.remain", div_u8x4_remain, div_u8x4_remain_want);
      v.check("div_s16x8_p3.quotient", div_s16x8_p3_quotient, div_s16x8_p3_quotient_want);
      v.check("div_s16x8_p3.remain", div_s16x8_p3_remain, div_s16x8_p3_remain_want);
      v.check("div_s64.quotient", div_s64_quotient, div_s64_quotient_want);
      v.check("div_s64.remain", div_s64_remain, div_s64_remain_want);
      v.check("div_u1_p3.quotient", div_u1_p3_quotient, div_u1_p3_quotient_want);
      v.check("div_u1_p3.remain", div_u1_p3_remain, div_u1_p3_remain_want);
      clock = 1'b1;
      #1 clock = 1'b0;
      v.next;
    end
    v.finish;
  end
endmodule
