constants_inst : constants PORT MAP(
		a	 => a_sig,
		y	 => y_sig,
		z	 => z_sig
	);
