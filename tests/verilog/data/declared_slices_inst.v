declared_slices	declared_slices_inst (
	.hi ( hi_sig ),
	.mid ( mid_sig ),
	.lo ( lo_sig ),
	.b ( b_sig ),
	.result ( result_sig )
	);
