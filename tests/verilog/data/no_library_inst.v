no_library	no_library_inst (

	);
