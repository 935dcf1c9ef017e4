// Multiplexer library module: selects one of lpm_size words of the flattened data bus (word k at bits k*lpm_width).
// String parameters are compared with literals of other widths; those comparisons are meant.
/* verilator lint_off WIDTH */
module lpm_mux (data, sel, clock, clken, aclr, result);
  parameter lpm_width = 1;
  parameter lpm_size = 2;
  parameter lpm_widths = 1;
  parameter lpm_pipeline = 0;
  parameter lpm_type = "LPM_MUX";
  parameter lpm_hint = "UNUSED";

  input [lpm_size*lpm_width-1:0] data;
  input [lpm_widths-1:0] sel;
  input clock, clken, aclr;
  output [lpm_width-1:0] result;

  tri0 clock, aclr;
  tri1 clken;

  reg [lpm_width-1:0] now;
  integer k;
  always @* begin
    now = {lpm_width{1'b0}};
    for (k = 0; k < lpm_size; k = k + 1)
      if (sel == k) now = data[k*lpm_width +: lpm_width];
  end

  localparam depth = (lpm_pipeline > 0) ? lpm_pipeline : 1;
  reg [lpm_width-1:0] stage [0:depth-1];
  integer i;
  always @(posedge clock or posedge aclr)
    if (aclr) for (i = 0; i < depth; i = i + 1) stage[i] <= {lpm_width{1'b0}};
    else if (clken) begin
      stage[0] <= now;
      for (i = 1; i < depth; i = i + 1) stage[i] <= stage[i-1];
    end

  assign result = (lpm_pipeline > 0) ? stage[depth-1] : now;
endmodule
