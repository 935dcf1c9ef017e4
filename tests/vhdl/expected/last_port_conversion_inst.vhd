last_port_conversion_inst : last_port_conversion PORT MAP(
		x	 => x_sig,
		y	 => y_sig,
		s	 => s_sig
	);
