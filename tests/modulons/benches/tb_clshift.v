// Bench of the shifter variations lsh8 (logical), ash64 (arithmetic), rot8 (rotating), all with a direction
// input, and rsh1 (one bit, fixed right shift), against vectors/clshift.vec.
module tb_clshift;
  reg [7:0] lsh8_data;
  reg [3:0] lsh8_distance;
  reg lsh8_direction;
  reg [63:0] ash64_data;
  reg [6:0] ash64_distance;
  reg ash64_direction;
  reg [7:0] rot8_data;
  reg [3:0] rot8_distance;
  reg rot8_direction;
  reg rsh1_data;
  reg [1:0] rsh1_distance;
  wire [7:0] lsh8_result;
  reg [7:0] lsh8_result_want;
  wire lsh8_overflow;
  reg lsh8_overflow_want;
  wire lsh8_underflow;
  reg lsh8_underflow_want;
  wire [63:0] ash64_result;
  reg [63:0] ash64_result_want;
  wire ash64_overflow;
  reg ash64_overflow_want;
  wire ash64_underflow;
  reg ash64_underflow_want;
  wire [7:0] rot8_result;
  reg [7:0] rot8_result_want;
  wire rsh1_result;
  reg rsh1_result_want;
  wire rsh1_underflow;
  reg rsh1_underflow_want;
  bench_vectors v ();
  lsh8 lsh8_dut (.data(lsh8_data), .distance(lsh8_distance), .direction(lsh8_direction), .result(lsh8_result),
    .overflow(lsh8_overflow), .underflow(lsh8_underflow));
  ash64 ash64_dut (.data(ash64_data), .distance(ash64_distance), .direction(ash64_direction),
    .result(ash64_result), .overflow(ash64_overflow), .underflow(ash64_underflow));
  rot8 rot8_dut (.data(rot8_data), .distance(rot8_distance), .direction(rot8_direction),
    .result(rot8_result));
  rsh1 rsh1_dut (.data(rsh1_data), .distance(rsh1_distance), .result(rsh1_result),
    .underflow(rsh1_underflow));

  initial begin
    v.open;
    while (v.more(0)) begin
      v.values_read($fscanf(v.file, "%h %h %h %h %h %h %h %h %h %h %h %h %h %h %h %h %h %h %h %h\n",
                            lsh8_data, lsh8_distance, lsh8_direction, ash64_data, ash64_distance,
                            ash64_direction, rot8_data, rot8_distance, rot8_direction, rsh1_data,
                            rsh1_distance, lsh8_result_want, lsh8_overflow_want, lsh8_underflow_want,
                            ash64_result_want, ash64_overflow_want, ash64_underflow_want, rot8_result_want,
                            rsh1_result_want, rsh1_underflow_want), 20);
      #1;
      v.check("lsh8.result", lsh8_result, lsh8_result_want);
      v.check("lsh8.overflow", lsh8_overflow, lsh8_overflow_want);
      v.check("lsh8.underflow", lsh8_underflow, lsh8_underflow_want);
      v.check("ash64.result", ash64_result, ash64_result_want);
      v.check("ash64.overflow", ash64_overflow, ash64_overflow_want);
      v.check("ash64.underflow", ash64_underflow, ash64_underflow_want);
      v.check("rot8.result", rot8_result, rot8_result_want);
      v.check("rsh1.result", rsh1_result, rsh1_result_want);
      v.check("rsh1.underflow", rsh1_underflow, rsh1_underflow_want);
      v.next;
    end
    v.finish;
  end
endmodule
