pipe	pipe_inst (
	.data ( data_sig ),
	.clk ( clk_sig ),
	.q ( q_sig )
	);
