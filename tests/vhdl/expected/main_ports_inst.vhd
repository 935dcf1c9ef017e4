main_ports_inst : main_ports PORT MAP(
		clock	 => clock_sig,
		q	 => q_sig
	);
