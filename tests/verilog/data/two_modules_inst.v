two_modules	two_modules_inst (
	.clock ( clock_sig ),
	.q ( q_sig )
	);
