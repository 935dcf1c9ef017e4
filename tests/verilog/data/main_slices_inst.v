main_slices	main_slices_inst (
	.clock ( clock_sig ),
	.low ( low_sig ),
	.high ( high_sig )
	);
