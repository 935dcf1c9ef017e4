library_uses_inst : library_uses PORT MAP(

	);
