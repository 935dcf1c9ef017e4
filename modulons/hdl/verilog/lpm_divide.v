// Divider library module: quotient and remain of numer divided by denom, each read unsigned or signed. The
// quotient is rounded toward zero and the remainder takes the numerator's sign; with lpm_remainderpositive
// "TRUE" a negative remainder is made positive by adding |denom| and correcting the quotient by one, so that
// numer = quotient * denom + remain with 0 <= remain < |denom|. Division by zero gives a quotient of all ones
// and the numerator's low bits as remainder. Outputs are the results' low bits.
// With lpm_pipeline > 0 both outputs pass that many registers clocked by clock while clken is high (an
// unconnected clken is high) and cleared by aclr; registers hold unknown values until filled or cleared.
module lpm_divide #(
  parameter lpm_widthn = 1,
  parameter lpm_widthd = 1,
  parameter lpm_nrepresentation = "UNSIGNED",
  parameter lpm_drepresentation = "UNSIGNED",
  parameter lpm_remainderpositive = "TRUE",
  parameter lpm_pipeline = 0,
  /* verilator lint_off UNUSEDPARAM */
  parameter lpm_type = "LPM_DIVIDE",
  parameter lpm_hint = "UNUSED"
  /* verilator lint_on UNUSEDPARAM */
) (
  input [lpm_widthn-1:0] numer,
  input [lpm_widthd-1:0] denom,
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
  output [lpm_widthn-1:0] quotient,
  output [lpm_widthd-1:0] remain);

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
  localparam signed_numer = lpm_nrepresentation == "SIGNED";
  localparam signed_denom = lpm_drepresentation == "SIGNED";
  localparam positive = lpm_remainderpositive == "TRUE";
  /* verilator lint_on WIDTH */

  // Both operands as signed numbers two bits wider than the wider of them, where every quotient and
  // remainder of the operands' ranges fits.
  localparam wide = ((lpm_widthn > lpm_widthd) ? lpm_widthn : lpm_widthd) + 2;
  wire signed [wide-1:0] n = {{(wide-lpm_widthn){signed_numer && numer[lpm_widthn-1]}}, numer};
  wire signed [wide-1:0] d = {{(wide-lpm_widthd){signed_denom && denom[lpm_widthd-1]}}, denom};
  wire zero = d == 0;
  // A zero divisor is replaced so that the operators never divide by zero; its results are not used.
  wire signed [wide-1:0] divisor = zero ? 1 : d;
  wire signed [wide-1:0] q0 = n / divisor;
  wire signed [wide-1:0] r0 = n % divisor;
  wire adjust = positive && r0 < 0;
  // Only the results' low bits leave the module.
  /* verilator lint_off UNUSEDSIGNAL */
  wire signed [wide-1:0] q = zero ? -1 : !adjust ? q0 : d > 0 ? q0 - 1 : q0 + 1;
  wire signed [wide-1:0] r = zero ? n : !adjust ? r0 : d > 0 ? r0 + d : r0 - d;
  /* verilator lint_on UNUSEDSIGNAL */
  wire [lpm_widthn+lpm_widthd-1:0] now = {q[lpm_widthn-1:0], r[lpm_widthd-1:0]};

  // The pipeline: stage k takes stage k-1 (stage 0 is both results), all on the same clock edge.
  localparam width = lpm_widthn + lpm_widthd;
  wire [(lpm_pipeline+1)*width-1:0] stages;
  assign stages[width-1:0] = now;
  genvar k;
  generate
    for (k = 1; k <= lpm_pipeline; k = k + 1) begin : pipeline
      reg [width-1:0] s;
      always @(posedge clock_p or posedge aclr_p)
        if (aclr_p) s <= {width{1'b0}};
        else if (clken_p) s <= stages[(k-1)*width +: width];
      assign stages[k*width +: width] = s;
    end
    if (lpm_pipeline == 0) begin : unclocked
      // Without a pipeline the clock inputs are not used.
      /* verilator lint_off UNUSEDSIGNAL */
      wire unused = &{1'b0, clock_p, clken_p, aclr_p};
      /* verilator lint_on UNUSEDSIGNAL */
    end
  endgenerate
  assign {quotient, remain} = stages[lpm_pipeline*width +: width];
endmodule
