rows_2d	rows_2d_inst (
	.d0 ( d0_sig ),
	.d1 ( d1_sig ),
	.sel ( sel_sig ),
	.y ( y_sig )
	);
