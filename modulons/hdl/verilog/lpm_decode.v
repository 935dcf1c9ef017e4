// Decoder library module: raises output eq[k] while data equals k and enable is high.
// String parameters are compared with literals of other widths; those comparisons are meant.
/* verilator lint_off WIDTH */
module lpm_decode (data, enable, clock, clken, aclr, eq);
  parameter lpm_width = 1;
  parameter lpm_decodes = 2;
  parameter lpm_pipeline = 0;
  parameter lpm_type = "LPM_DECODE";
  parameter lpm_hint = "UNUSED";

  input [lpm_width-1:0] data;
  input enable, clock, clken, aclr;
  output [lpm_decodes-1:0] eq;

  tri1 enable, clken;
  tri0 clock, aclr;

  reg [lpm_decodes-1:0] now;
  integer k;
  always @* begin
    now = {lpm_decodes{1'b0}};
    for (k = 0; k < lpm_decodes; k = k + 1)
      if (enable && data == k) now[k] = 1'b1;
  end

  localparam depth = (lpm_pipeline > 0) ? lpm_pipeline : 1;
  reg [lpm_decodes-1:0] stage [0:depth-1];
  integer i;
  always @(posedge clock or posedge aclr)
    if (aclr) for (i = 0; i < depth; i = i + 1) stage[i] <= {lpm_decodes{1'b0}};
    else if (clken) begin
      stage[0] <= now;
      for (i = 1; i < depth; i = i + 1) stage[i] <= stage[i-1];
    end

  assign eq = (lpm_pipeline > 0) ? stage[depth-1] : now;
endmodule
