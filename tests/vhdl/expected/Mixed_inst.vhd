Mixed_inst : Mixed PORT MAP(
		Clock	 => Clock_sig,
		Q	 => Q_sig
	);
