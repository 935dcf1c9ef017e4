// Shift register library module: shifts left or right, loads in parallel, sets and clears.
// String parameters are compared with literals of other widths; those comparisons are meant.
/* verilator lint_off WIDTH */
module lpm_shiftreg (data, clock, enable, shiftin, load, aclr, aset, sclr, sset, q, shiftout);
  parameter lpm_width = 1;
  parameter lpm_direction = "LEFT";
  parameter lpm_type = "LPM_SHIFTREG";
  parameter lpm_hint = "UNUSED";

  input [lpm_width-1:0] data;
  input clock, enable, shiftin, load, aclr, aset, sclr, sset;
  output [lpm_width-1:0] q;
  output shiftout;

  tri1 enable, shiftin;
  tri0 load, aclr, aset, sclr, sset;

  reg [lpm_width-1:0] value = {lpm_width{1'b0}};
  wire right = lpm_direction == "RIGHT";
  wire [lpm_width:0] left_shifted = {value, shiftin};
  wire [lpm_width:0] right_shifted = {shiftin, value};

  always @(posedge clock or posedge aclr or posedge aset)
    if (aclr) value <= {lpm_width{1'b0}};
    else if (aset) value <= {lpm_width{1'b1}};
    else if (enable) begin
      if (sclr) value <= {lpm_width{1'b0}};
      else if (sset) value <= {lpm_width{1'b1}};
      else if (load) value <= data;
      else value <= right ? right_shifted[lpm_width:1] : left_shifted[lpm_width-1:0];
    end

  assign q = value;
  assign shiftout = right ? value[0] : value[lpm_width-1];
endmodule
