// Bench of the gate variations and64x3 (AND of 3 words of 64 bits), or1x5 (OR of 5 bits) and xor8x4 (XOR of 4
// bytes), against vectors/gates.vec.
module tb_gates;
  reg [191:0] and64x3_data;
  reg [4:0] or1x5_data;
  reg [31:0] xor8x4_data;
  wire [63:0] and64x3_result;
  reg [63:0] and64x3_result_want;
  wire or1x5_result;
  reg or1x5_result_want;
  wire [7:0] xor8x4_result;
  reg [7:0] xor8x4_result_want;
  bench_vectors v ();
  and64x3 and64x3_dut (.data(and64x3_data), .result(and64x3_result));
  or1x5 or1x5_dut (.data(or1x5_data), .result(or1x5_result));
  xor8x4 xor8x4_dut (.data(xor8x4_data), .result(xor8x4_result));

  initial begin
    v.open;
    while (v.more(0)) begin
      v.values_read($fscanf(v.file, "%h %h %h %h %h %h\n",
                            and64x3_data, or1x5_data, xor8x4_data, and64x3_result_want, or1x5_result_want,
                            xor8x4_result_want), 6);
      #1;
      v.check("and64x3.result", and64x3_result, and64x3_result_want);
      v.check("or1x5.result", or1x5_result, or1x5_result_want);
      v.check("xor8x4.result", xor8x4_result, xor8x4_result_want);
      v.next;
    end
    v.finish;
  end
endmodule
