mux2_inst : mux2 PORT MAP(
		sel	 => sel_sig,
		en_n	 => en_n_sig,
		result	 => result_sig,
		busy	 => busy_sig
	);
