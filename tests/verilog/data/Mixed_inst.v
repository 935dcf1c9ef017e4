Mixed	Mixed_inst (
	.clock ( clock_sig ),
	.q ( q_sig )
	);
