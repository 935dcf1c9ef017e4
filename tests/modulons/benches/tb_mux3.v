// Bench of the multiplexer variation mux3 (three 4-bit words side by side on data, 2-bit sel).
module tb_mux3;
  reg [11:0] data;
  reg [1:0] sel;
  wire [3:0] result;
  integer round, s, errors = 0;
  reg [3:0] want;

  mux3 dut (.data(data), .sel(sel), .result(result));

  initial begin
    for (round = 0; round < 20; round = round + 1) begin
      data = round * 12'h2e9 + 12'h1b;
      for (s = 0; s < 4; s = s + 1) begin
        sel = s;
        want = s < 3 ? data[s*4 +: 4] : 4'h0;
        #1 if (result !== want) begin
          $display("FAIL data=%h sel=%0d: result=%h", data, s, result);
          errors = errors + 1;
        end
      end
    end
    if (errors == 0) $display("PASS");
    $finish;
  end
endmodule
