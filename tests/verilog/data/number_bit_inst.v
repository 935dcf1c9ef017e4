number_bit	number_bit_inst (
	.a ( a_sig ),
	.b ( b_sig ),
	.equal ( equal_sig )
	);
