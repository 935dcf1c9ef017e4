library_uses	library_uses_inst (

	);
