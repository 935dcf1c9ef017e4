// The three feeds of the shifter's data input, most significant first: a, then b, then c.
module sim;
	reg clock = 0, a = 1, c = 0;
	reg [1:0] b = 2'b01;
	wire [3:0] q;
	three_feeds dut (.clock(clock), .a(a), .b(b), .c(c), .q(q));
	initial begin
		#1 clock = 1; #1 clock = 0;
		#1 if (q === 4'b1010) $display("PASS"); else $display("FAIL q=%b", q);
		$finish;
	end
endmodule
