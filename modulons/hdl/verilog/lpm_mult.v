// Multiplier library module: result is dataa times datab, both read unsigned or both signed. A result narrower
// than the full product (lpm_widtha + lpm_widthb bits) keeps its most significant bits; a wider one is extended.
// With lpm_pipeline > 0 the result passes that many registers clocked by clock while clken is high (an
// unconnected clken is high) and cleared by aclr; registers hold unknown values until filled or cleared.
module lpm_mult #(
  parameter lpm_widtha = 1,
  parameter lpm_widthb = 1,
  parameter lpm_widthp = 2,
  parameter lpm_representation = "UNSIGNED",
  parameter lpm_pipeline = 0,
  /* verilator lint_off UNUSEDPARAM */
  parameter lpm_type = "LPM_MULT",
  parameter lpm_hint = "UNUSED"
  /* verilator lint_on UNUSEDPARAM */
) (
  input [lpm_widtha-1:0] dataa,
  input [lpm_widthb-1:0] datab,
`ifdef YOSYS
  // Yosys has no pulled nets; its hierarchy pass gives an unconnected input the default declared here.
  input clock = 1'b0,
  input clken = 1'b1,
  input aclr = 1'b0,
`elsif VERILATOR
  // In Verilator the ports themselves are pulled.
  input tri0 clock,
  input tri1 clken,
  input tri0 aclr,
`else
  // Simulators pull the nets the ports feed (below), so that a connected port stays an input.
  input clock, clken, aclr,
`endif
  output [lpm_widthp-1:0] result);

  // The inputs with their defaults when unconnected.
`ifdef YOSYS
  wire clock_p = clock, clken_p = clken, aclr_p = aclr;
`elsif VERILATOR
  wire clock_p = clock, clken_p = clken, aclr_p = aclr;
`else
  tri0 clock_p = clock, aclr_p = aclr;
  tri1 clken_p = clken;
`endif

  // String parameters are compared with literals of other widths; those comparisons are meant.
  /* verilator lint_off WIDTH */
  localparam signed_operands = lpm_representation == "SIGNED";
  /* verilator lint_on WIDTH */

  // The exact product fits the full width; computed on operands extended to the larger of the full and the
  // result width, it is also right where the result is wider.
  localparam full = lpm_widtha + lpm_widthb;
  localparam wide = (lpm_widthp > full) ? lpm_widthp : full;
  wire [wide-1:0] a = {{(wide-lpm_widtha){signed_operands && dataa[lpm_widtha-1]}}, dataa};
  wire [wide-1:0] b = {{(wide-lpm_widthb){signed_operands && datab[lpm_widthb-1]}}, datab};
  // A narrower result drops the product's low bits.
  /* verilator lint_off UNUSEDSIGNAL */
  wire [wide-1:0] product = a * b;
  /* verilator lint_on UNUSEDSIGNAL */
  wire [lpm_widthp-1:0] now = product[wide-1 -: lpm_widthp];

  // The pipeline: stage k takes stage k-1 (stage 0 is the product), all on the same clock edge.
  wire [(lpm_pipeline+1)*lpm_widthp-1:0] stages;
  assign stages[lpm_widthp-1:0] = now;
  genvar k;
  generate
    for (k = 1; k <= lpm_pipeline; k = k + 1) begin : pipeline
      reg [lpm_widthp-1:0] q;
      always @(posedge clock_p or posedge aclr_p)
        if (aclr_p) q <= {lpm_widthp{1'b0}};
        else if (clken_p) q <= stages[(k-1)*lpm_widthp +: lpm_widthp];
      assign stages[k*lpm_widthp +: lpm_widthp] = q;
    end
    if (lpm_pipeline == 0) begin : unclocked
      // Without a pipeline the clock inputs are not used.
      /* verilator lint_off UNUSEDSIGNAL */
      wire unused = &{1'b0, clock_p, clken_p, aclr_p};
      /* verilator lint_on UNUSEDSIGNAL */
    end
  endgenerate
  assign result = stages[lpm_pipeline*lpm_widthp +: lpm_widthp];
endmodule
