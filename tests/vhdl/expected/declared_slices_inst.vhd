declared_slices_inst : declared_slices PORT MAP(
		hi	 => hi_sig,
		mid	 => mid_sig,
		lo	 => lo_sig,
		b	 => b_sig,
		result	 => result_sig
	);
