// Bench of the library modules' defaults: every optional input is left unconnected and must take its default
// (enables and carry 1, clears 0, shiftin 1, carry in 0 when adding and 1 when subtracting), against
// vectors/defaults.vec; the outputs are compared after each line's clock edge.
module tb_defaults;
  reg clock = 1'b0;
  reg [7:0] a, b;
  wire [3:0] count, shifted, eq;
  wire [7:0] sum, difference;
  wire cout, aeb;
  reg [3:0] count_want, shifted_want, eq_want;
  reg [7:0] sum_want, difference_want;
  reg cout_want, aeb_want;
  bench_vectors v ();

  lpm_counter #(.lpm_width(4), .lpm_direction("UP")) counter (.clock(clock), .q(count), .cout(cout));
  lpm_add_sub #(.lpm_width(8), .lpm_direction("ADD")) adder (.dataa(a), .datab(b), .result(sum));
  lpm_add_sub #(.lpm_width(8), .lpm_direction("SUB")) subtractor (.dataa(a), .datab(b), .result(difference));
  lpm_shiftreg #(.lpm_width(4)) shifter (.clock(clock), .q(shifted));
  lpm_decode #(.lpm_width(2), .lpm_decodes(4)) decoder (.data(a[1:0]), .eq(eq));
  lpm_compare #(.lpm_width(8), .lpm_pipeline(1)) comparator (.dataa(a), .datab(b), .clock(clock), .aeb(aeb));

  initial begin
    v.open;
    while (v.more(0)) begin
      v.values_read($fscanf(v.file, "%h %h %h %h %h %h %h %h %h\n", a, b, count_want, cout_want, sum_want,
                            difference_want, shifted_want, eq_want, aeb_want), 9);
      #4 clock = 1'b1;
      #4;
      v.check("count", count, count_want);
      v.check("cout", cout, cout_want);
      v.check("sum", sum, sum_want);
      v.check("difference", difference, difference_want);
      v.check("shifted", shifted, shifted_want);
      v.check("eq", eq, eq_want);
      v.check("aeb", aeb, aeb_want);
      #1 clock = 1'b0;
      #1 v.next;
    end
    v.finish;
  end
endmodule
