no_default_lib	no_default_lib_inst (

	);
