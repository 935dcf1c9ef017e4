rows_2d_inst : rows_2d PORT MAP(
		d0	 => d0_sig,
		d1	 => d1_sig,
		sel	 => sel_sig,
		y	 => y_sig
	);
