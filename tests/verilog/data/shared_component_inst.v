shared_component	shared_component_inst (
	.clk ( clk_sig )
	);
