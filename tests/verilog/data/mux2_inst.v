mux2	mux2_inst (
	.sel ( sel_sig ),
	.en_n ( en_n_sig ),
	.result ( result_sig ),
	.busy ( busy_sig )
	);
