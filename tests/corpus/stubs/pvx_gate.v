// Stand-in with the ports of the gate the corpus instantiates.
module pvx_gate (a, en, clr, mask, init, data, set, sel, y);
	input a, en, clr;
	input [7:0] mask, init, data;
	input [3:0] set, sel;
	output [7:0] y;
	assign y = clr ? init : (en & a) ? (data & mask) : {set, sel};
endmodule
