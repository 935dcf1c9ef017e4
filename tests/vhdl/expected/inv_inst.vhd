inv_inst : inv PORT MAP(
		a	 => a_sig,
		b	 => b_sig
	);
