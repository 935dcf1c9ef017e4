pass	pass_inst (
	.s ( s_sig ),
	.y ( y_sig )
	);
