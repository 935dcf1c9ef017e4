two_modules_inst : two_modules PORT MAP(
		clock	 => clock_sig,
		q	 => q_sig
	);
