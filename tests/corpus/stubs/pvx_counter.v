// Stand-in with the ports of the counter the corpus instantiates.
module pvx_counter (clock, q);
	parameter width = 8;
	input clock;
	output [width-1:0] q;
	reg [width-1:0] count = 0;
	always @(posedge clock) count <= count + 1'b1;
	assign q = count;
endmodule
