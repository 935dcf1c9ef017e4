// Three clock edges through the variation: the counter's value reaches the output.
module sim;
	reg clock = 0;
	wire [7:0] q;
	counter dut (.clock(clock), .q(q));
	initial begin
		repeat (3) begin #1 clock = 1; #1 clock = 0; end
		#1 if (q === 8'd3) $display("PASS"); else $display("FAIL q=%b", q);
		$finish;
	end
endmodule
