library_counter	library_counter_inst (
	.clock ( clock_sig ),
	.cnt_en ( cnt_en_sig ),
	.aclr ( aclr_sig ),
	.data ( data_sig ),
	.q ( q_sig )
	);
