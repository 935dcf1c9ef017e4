main_ports	main_ports_inst (
	.clock ( clock_sig ),
	.q ( q_sig )
	);
