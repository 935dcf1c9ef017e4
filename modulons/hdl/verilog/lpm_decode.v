// Decoder library module: raises output eq[k] while data equals k and enable is high.
// String parameters are compared with literals of other widths; those comparisons are meant.
/* verilator lint_off WIDTH */
module lpm_decode #(
  parameter lpm_width = 1,
  parameter lpm_decodes = 2,
  parameter lpm_pipeline = 0,
  /* verilator lint_off UNUSEDPARAM */
  parameter lpm_type = "LPM_DECODE",
  parameter lpm_hint = "UNUSED"
  /* verilator lint_on UNUSEDPARAM */
) (
  input [lpm_width-1:0] data,
`ifdef YOSYS
  input enable = 1'b1, input clken = 1'b1, input clock = 1'b0, input aclr = 1'b0,
`elsif VERILATOR
  input tri1 enable, clken,
  input tri0 clock, aclr,
`else
  input enable, clken, clock, aclr,
`endif
  output [lpm_decodes-1:0] eq);

  // Unconnected inputs: enable and clken 1, clock and aclr 0. The _p nets carry the inputs with those defaults:
  // nets pulled to them, so that a connected port stays an input; where a tool has no pulled nets (Yosys) or
  // pulls only ports (Verilator), the ports themselves carry the defaults (docs/hdl-models.md).
`ifdef YOSYS
  wire enable_p = enable, clken_p = clken;
  wire clock_p = clock, aclr_p = aclr;
`elsif VERILATOR
  wire enable_p = enable, clken_p = clken;
  wire clock_p = clock, aclr_p = aclr;
`else
  tri1 enable_p = enable, clken_p = clken;
  tri0 clock_p = clock, aclr_p = aclr;
`endif

  reg [lpm_decodes-1:0] now;
  integer k;
  always @* begin
    now = {lpm_decodes{1'b0}};
    for (k = 0; k < lpm_decodes; k = k + 1)
      if (enable_p && data == k) now[k] = 1'b1;
  end

  localparam depth = (lpm_pipeline > 0) ? lpm_pipeline : 1;
  // The stages side by side, the newest lowest; chain adds the current value below them.
  reg [depth*lpm_decodes-1:0] stage = {(depth*lpm_decodes){1'b0}};
  wire [(depth+1)*lpm_decodes-1:0] chain = {stage, now};
  always @(posedge clock_p or posedge aclr_p)
    if (aclr_p) stage <= {(depth*lpm_decodes){1'b0}};
    else if (clken_p) stage <= chain[depth*lpm_decodes-1:0];

  assign eq = (lpm_pipeline > 0) ? chain[(depth+1)*lpm_decodes-1 -: lpm_decodes] : now;
endmodule
/* verilator lint_on WIDTH */
