three_feeds_inst : three_feeds PORT MAP(
		clock	 => clock_sig,
		a	 => a_sig,
		b	 => b_sig,
		c	 => c_sig,
		q	 => q_sig
	);
