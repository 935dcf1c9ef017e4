number_bit_inst : number_bit PORT MAP(
		a	 => a_sig,
		b	 => b_sig,
		equal	 => equal_sig
	);
