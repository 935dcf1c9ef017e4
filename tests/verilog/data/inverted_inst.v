inverted	inverted_inst (
	.a ( a_sig ),
	.b ( b_sig ),
	.y ( y_sig )
	);
