// Stand-in with the ports of the shift register the corpus instantiates.
module pvx_shifter (clock, data, q);
	parameter depth = 4;
	parameter mode = "none";
	parameter label = "none";
	input clock;
	input [3:0] data;
	output [3:0] q;
	reg [3:0] held = 0;
	always @(posedge clock) held <= data;
	assign q = held;
endmodule
