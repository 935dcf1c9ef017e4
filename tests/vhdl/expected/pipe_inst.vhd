pipe_inst : pipe PORT MAP(
		Data	 => Data_sig,
		clk	 => clk_sig,
		q	 => q_sig
	);
