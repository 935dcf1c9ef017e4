constants	constants_inst (
	.a ( a_sig ),
	.y ( y_sig ),
	.z ( z_sig )
	);
