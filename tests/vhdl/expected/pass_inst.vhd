pass_inst : pass PORT MAP(
		s	 => s_sig,
		y	 => y_sig
	);
