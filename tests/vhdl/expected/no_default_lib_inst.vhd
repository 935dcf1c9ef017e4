no_default_lib_inst : no_default_lib PORT MAP(

	);
