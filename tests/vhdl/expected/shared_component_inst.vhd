shared_component_inst : shared_component PORT MAP(
		clk	 => clk_sig
	);
