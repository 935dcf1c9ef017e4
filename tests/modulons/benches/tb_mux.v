// Bench of the multiplexer variations mux8x5_p3 (5 bytes, pipeline 3), mux64x2 and mux1x3, against
// vectors/mux.vec.
module tb_mux;
  reg clock = 1'b0;
  reg [39:0] mux8x5_p3_data;
  reg [2:0] mux8x5_p3_sel;
  reg [127:0] mux64x2_data;
  reg mux64x2_sel;
  reg [2:0] mux1x3_data;
  reg [1:0] mux1x3_sel;
  wire [7:0] mux8x5_p3_result;
  reg [7:0] mux8x5_p3_result_want;
  wire [63:0] mux64x2_result;
  reg [63:0] mux64x2_result_want;
  wire mux1x3_result;
  reg mux1x3_result_want;
  bench_vectors v ();
  mux8x5_p3 mux8x5_p3_dut (.data(mux8x5_p3_data), .sel(mux8x5_p3_sel), .clock(clock),
    .result(mux8x5_p3_result));
  mux64x2 mux64x2_dut (.data(mux64x2_data), .sel(mux64x2_sel), .result(mux64x2_result));
  mux1x3 mux1x3_dut (.data(mux1x3_data), .sel(mux1x3_sel), .result(mux1x3_result));

  initial begin
    v.open;
    while (v.more(0)) begin
      v.values_read($fscanf(v.file, "%h %h %h %h %h %h %h %h %h\n",
                            mux8x5_p3_data, mux8x5_p3_sel, mux64x2_data, mux64x2_sel, mux1x3_data, mux1x3_sel,
                            mux8x5_p3_result_want, mux64x2_result_want, mux1x3_result_want), 9);
      #1;
      v.check("mux8x5_p3.result", mux8x5_p3_result, mux8x5_p3_result_want);
      v.check("mux64x2.result", mux64x2_result, mux64x2_result_want);
      v.check("mux1x3.result", mux1x3_result, mux1x3_result_want);
      clock = 1'b1;
      #1 clock = 1'b0;
      v.next;
    end
    v.finish;
  end
endmodule
