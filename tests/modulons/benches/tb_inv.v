// Bench of the inverter variations inv1 and inv64, against vectors/inv.vec.
module tb_inv;
  reg inv1_data;
  reg [63:0] inv64_data;
  wire inv1_result;
  reg inv1_result_want;
  wire [63:0] inv64_result;
  reg [63:0] inv64_result_want;
  bench_vectors v ();
  inv1 inv1_dut (.data(inv1_data), .result(inv1_result));
  inv64 inv64_dut (.data(inv64_data), .result(inv64_result));

  initial begin
    v.open;
    while (v.more(0)) begin
      v.values_read($fscanf(v.file, "%h %h %h %h\n",
                            inv1_data, inv64_data, inv1_result_want, inv64_result_want), 4);
      #1;
      v.check("inv1.result", inv1_result, inv1_result_want);
      v.check("inv64.result", inv64_result, inv64_result_want);
      v.next;
    end
    v.finish;
  end
endmodule
