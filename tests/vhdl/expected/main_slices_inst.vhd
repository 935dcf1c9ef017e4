main_slices_inst : main_slices PORT MAP(
		clock	 => clock_sig,
		low	 => low_sig,
		high	 => high_sig
	);
