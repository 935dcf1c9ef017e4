last_port_conversion	last_port_conversion_inst (
	.x ( x_sig ),
	.y ( y_sig ),
	.s ( s_sig )
	);
