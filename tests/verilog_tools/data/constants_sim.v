// The constants' values at the gate: en = VCC, clr = GND, mask = 165, data = -1, set = 1, sel = 300 cut to 4 bits.
module sim;
	reg a = 1;
	wire [7:0] y;
	wire z;
	constants dut (.a(a), .y(y), .z(z));
	initial begin
		#1 if (y !== 8'ha5 || z !== 1'b1) $display("FAIL y=%h z=%b", y, z);
		a = 0;
		#1 if (y === 8'h1c) $display("PASS"); else $display("FAIL y=%h", y);
		$finish;
	end
endmodule
