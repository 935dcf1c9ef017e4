module top (a, q);
  input [3:0] a;
  output q;
  sub sub_component (.d(a), .o(q));
endmodule
