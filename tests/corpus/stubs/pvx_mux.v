// Stand-in with the ports of the multiplexer the corpus instantiates: two rows of four bits.
module pvx_mux (data, sel, result);
	input [7:0] data;
	input sel;
	output [3:0] result;
	assign result = sel ? data[7:4] : data[3:0];
endmodule
