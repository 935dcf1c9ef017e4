count8_inst : count8 PORT MAP(
		clock	 => clock_sig,
		cnt_en	 => cnt_en_sig,
		data	 => data_sig,
		q	 => q_sig,
		cout	 => cout_sig
	);
