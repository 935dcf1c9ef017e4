inv	inv_inst (
	.a ( a_sig ),
	.b ( b_sig )
	);
