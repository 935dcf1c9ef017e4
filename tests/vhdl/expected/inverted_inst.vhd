inverted_inst : inverted PORT MAP(
		a	 => a_sig,
		b	 => b_sig,
		y	 => y_sig
	);
