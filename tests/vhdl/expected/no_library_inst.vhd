no_library_inst : no_library PORT MAP(

	);
