// Binary counter library module: up, down or updown counting with modulus, loads, sets, clears and carry.
// String parameters are compared with literals of other widths; those comparisons are meant.
/* verilator lint_off WIDTH */
module lpm_counter (data, clock, clk_en, cnt_en, updown, aclr, aset, aload, sclr, sset, sload, cin, q, cout);
  parameter lpm_width = 1;
  parameter lpm_direction = "UNUSED";
  parameter lpm_modulus = 0;
  parameter lpm_type = "LPM_COUNTER";
  parameter lpm_hint = "UNUSED";

  input [lpm_width-1:0] data;
  input clock, clk_en, cnt_en, updown, cin;
  input aclr, aset, aload, sclr, sset, sload;
  output [lpm_width-1:0] q;
  output cout;

  // Unconnected controls take their inactive levels; unconnected enables count.
  tri1 clk_en, cnt_en, updown, cin;
  tri0 aclr, aset, aload, sclr, sset, sload;

  localparam [lpm_width-1:0] ones = {lpm_width{1'b1}};
  localparam [lpm_width-1:0] last = (lpm_modulus == 0) ? ones : lpm_modulus - 1;

  reg [lpm_width-1:0] count = {lpm_width{1'b0}};
  wire up = (lpm_direction == "UP") ? 1'b1 : (lpm_direction == "DOWN") ? 1'b0 : updown;
  wire [lpm_width-1:0] next_up = (count == last) ? {lpm_width{1'b0}} : count + 1'b1;
  wire [lpm_width-1:0] next_down = (count == {lpm_width{1'b0}}) ? last : count - 1'b1;

  always @(posedge clock or posedge aclr or posedge aset or posedge aload)
    if (aclr) count <= {lpm_width{1'b0}};
    else if (aset) count <= ones;
    else if (aload) count <= data;
    else if (clk_en) begin
      if (sclr) count <= {lpm_width{1'b0}};
      else if (sset) count <= ones;
      else if (sload) count <= data;
      else if (cnt_en && cin) count <= up ? next_up : next_down;
    end

  assign q = count;
  assign cout = cin && (up ? count == last : count == {lpm_width{1'b0}});
endmodule
