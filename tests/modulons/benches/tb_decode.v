// Bench of the decoder variations dec3x6 (with enable) and dec1x2, against vectors/decode.vec.
module tb_decode;
  reg [2:0] dec3x6_data;
  reg dec3x6_enable;
  reg dec1x2_data;
  wire [5:0] dec3x6_eq;
  reg [5:0] dec3x6_eq_want;
  wire [1:0] dec1x2_eq;
  reg [1:0] dec1x2_eq_want;
  bench_vectors v ();
  dec3x6 dec3x6_dut (.data(dec3x6_data), .enable(dec3x6_enable), .eq(dec3x6_eq));
  dec1x2 dec1x2_dut (.data(dec1x2_data), .eq(dec1x2_eq));

  initial begin
    v.open;
    while (v.more(0)) begin
      v.values_read($fscanf(v.file, "%h %h %h %h %h\n",
                            dec3x6_data, dec3x6_enable, dec1x2_data, dec3x6_eq_want, dec1x2_eq_want), 5);
      #1;
      v.check("dec3x6.eq", dec3x6_eq, dec3x6_eq_want);
      v.check("dec1x2.eq", dec1x2_eq, dec1x2_eq_want);
      v.next;
    end
    v.finish;
  end
endmodule
