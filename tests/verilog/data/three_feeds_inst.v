three_feeds	three_feeds_inst (
	.clock ( clock_sig ),
	.a ( a_sig ),
	.b ( b_sig ),
	.c ( c_sig ),
	.q ( q_sig )
	);
