// Bench of the RAM variation ram32 (32 words of 8 bits, registered data, address and write enable).
module tb_ram32;
  reg [7:0] data = 0;
  reg [4:0] address = 0;
  reg we = 0, inclock = 0;
  wire [7:0] q;
  integer k, errors = 0;

  ram32 dut (.data(data), .address(address), .we(we), .inclock(inclock), .q(q));

  task clock_edge;
    begin
      #1 inclock = 1;
      #1 inclock = 0;
    end
  endtask

  initial begin
    for (k = 0; k < 32; k = k + 1) begin
      address = k;
      data = (k * 37 + 5) % 256;
      we = 1;
      clock_edge;
      if (q !== (k * 37 + 5) % 256) begin
        $display("FAIL write %0d: q=%0d", k, q);
        errors = errors + 1;
      end
    end
    we = 0;
    data = 8'hff;
    for (k = 31; k >= 0; k = k - 3) begin
      address = k;
      clock_edge;
      if (q !== (k * 37 + 5) % 256) begin
        $display("FAIL read %0d: q=%0d", k, q);
        errors = errors + 1;
      end
    end
    if (errors == 0) $display("PASS");
    $finish;
  end
endmodule
