// Binary counter library module: up, down or updown counting with modulus, loads, sets, clears and carry.
// String parameters are compared with literals of other widths; those comparisons are meant.
/* verilator lint_off WIDTH */
module lpm_counter #(
  parameter lpm_width = 1,
  parameter lpm_direction = "UNUSED",
  parameter lpm_modulus = 0,
  /* verilator lint_off UNUSEDPARAM */
  parameter lpm_type = "LPM_COUNTER",
  parameter lpm_hint = "UNUSED"
  /* verilator lint_on UNUSEDPARAM */
) (
  input clock,
`ifdef YOSYS
  input [lpm_width-1:0] data = {lpm_width{1'b0}},
  input clk_en = 1'b1, input cnt_en = 1'b1, input updown = 1'b1, input cin = 1'b1, input aclr = 1'b0,
  input aset = 1'b0, input aload = 1'b0, input sclr = 1'b0, input sset = 1'b0, input sload = 1'b0,
`elsif VERILATOR
  input tri0 [lpm_width-1:0] data,
  input tri1 clk_en, cnt_en, updown, cin,
  input tri0 aclr, aset, aload, sclr, sset, sload,
`else
  input [lpm_width-1:0] data,
  input clk_en, cnt_en, updown, cin, aclr, aset, aload, sclr, sset, sload,
`endif
  output [lpm_width-1:0] q,
  output cout);

  // Unconnected controls and data take their inactive levels; unconnected enables count. The _p nets carry the
  // inputs with those defaults: nets pulled to them, so that a connected port stays an input; where a tool has
  // no pulled nets (Yosys) or pulls only ports (Verilator), the ports themselves carry the defaults
  // (docs/hdl-models.md).
`ifdef YOSYS
  wire [lpm_width-1:0] data_p = data;
  wire clk_en_p = clk_en, cnt_en_p = cnt_en, updown_p = updown, cin_p = cin;
  wire aclr_p = aclr, aset_p = aset, aload_p = aload, sclr_p = sclr, sset_p = sset, sload_p = sload;
`elsif VERILATOR
  wire [lpm_width-1:0] data_p = data;
  wire clk_en_p = clk_en, cnt_en_p = cnt_en, updown_p = updown, cin_p = cin;
  wire aclr_p = aclr, aset_p = aset, aload_p = aload, sclr_p = sclr, sset_p = sset, sload_p = sload;
`else
  tri0 [lpm_width-1:0] data_p = data;
  tri1 clk_en_p = clk_en, cnt_en_p = cnt_en, updown_p = updown, cin_p = cin;
  tri0 aclr_p = aclr, aset_p = aset, aload_p = aload, sclr_p = sclr, sset_p = sset, sload_p = sload;
`endif

  localparam [lpm_width-1:0] ones = {lpm_width{1'b1}};
  localparam [lpm_width-1:0] last = (lpm_modulus == 0) ? ones : lpm_modulus - 1;

  reg [lpm_width-1:0] count = {lpm_width{1'b0}};
  wire up = (lpm_direction == "UP") ? 1'b1 : (lpm_direction == "DOWN") ? 1'b0 : updown_p;
  wire [lpm_width-1:0] next_up = (count == last) ? {lpm_width{1'b0}} : count + 1'b1;
  wire [lpm_width-1:0] next_down = (count == {lpm_width{1'b0}}) ? last : count - 1'b1;

  always @(posedge clock or posedge aclr_p or posedge aset_p or posedge aload_p)
    if (aclr_p) count <= {lpm_width{1'b0}};
    else if (aset_p) count <= ones;
    else if (aload_p) count <= data_p;
    else if (clk_en_p) begin
      if (sclr_p) count <= {lpm_width{1'b0}};
      else if (sset_p) count <= ones;
      else if (sload_p) count <= data_p;
      else if (cnt_en_p && cin_p) count <= up ? next_up : next_down;
    end

  assign q = count;
  assign cout = cin_p && (up ? count == last : count == {lpm_width{1'b0}});
endmodule
/* verilator lint_on WIDTH */
