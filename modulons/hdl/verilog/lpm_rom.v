// Read-only memory library module: its words come from an initialisation file, its address and output are
// registered or direct.
// String parameters are compared with literals of other widths; those comparisons are meant.
/* verilator lint_off WIDTH */
module lpm_rom #(
  parameter lpm_width = 1,
  parameter lpm_widthad = 1,
  parameter lpm_numwords = 1 << lpm_widthad,
  parameter lpm_address_control = "REGISTERED",
  parameter lpm_outdata = "REGISTERED",
  parameter lpm_file = "UNUSED",
  /* verilator lint_off UNUSEDPARAM */
  parameter lpm_type = "LPM_ROM",
  parameter lpm_hint = "UNUSED"
  /* verilator lint_on UNUSEDPARAM */
) (
  input [lpm_widthad-1:0] address,
`ifdef YOSYS
  input inclock = 1'b0, input outclock = 1'b0,
`elsif VERILATOR
  input tri0 inclock, outclock,
`else
  input inclock, outclock,
`endif
  output [lpm_width-1:0] q);

  // Unconnected clocks stay 0. The _p nets carry the inputs with those defaults: nets pulled to them, so that a
  // connected port stays an input; where a tool has no pulled nets (Yosys) or pulls only ports (Verilator), the
  // ports themselves carry the defaults (docs/hdl-models.md).
`ifdef YOSYS
  wire inclock_p = inclock, outclock_p = outclock;
`elsif VERILATOR
  wire inclock_p = inclock, outclock_p = outclock;
`else
  tri0 inclock_p = inclock, outclock_p = outclock;
`endif

  // The words; those the file does not give are 0.
  reg [lpm_width-1:0] memory [0:lpm_numwords-1];
  integer k;

`ifdef YOSYS
  // Yosys reads the plain format itself.
  generate
    if (lpm_file != "UNUSED") begin : contents
      initial $readmemh(lpm_file, memory);
    end else begin : zeros
      initial for (k = 0; k < lpm_numwords; k = k + 1) memory[k] = {lpm_width{1'b0}};
    end
  endgenerate
`else
  // The initialisation file (docs/hdl-models.md): Intel HEX when its first character is ':', else the plain
  // format of hexadecimal words, "@" addresses and "//" comments. Addresses count words.
  integer file, ch, next_address, digit;
  reg [lpm_width+7:0] word;

  function integer hex_digit(input integer c);
    if (c >= "0" && c <= "9") hex_digit = c - "0";
    else if (c >= "a" && c <= "f") hex_digit = c - "a" + 10;
    else if (c >= "A" && c <= "F") hex_digit = c - "A" + 10;
    else hex_digit = -1;
  endfunction

  task store(input integer at);
    if (at >= 0 && at < lpm_numwords) memory[at] = word[lpm_width-1:0];
    else $display("lpm_rom: %0s: address %0d is outside the memory", lpm_file, at);
  endtask

  // A hexadecimal number starting at ch into word; ch is the character after it.
  task read_number;
    begin
      word = {(lpm_width+8){1'b0}};
      digit = hex_digit(ch);
      while (digit >= 0) begin
        word = (word << 4) | digit;
        ch = $fgetc(file);
        digit = hex_digit(ch);
      end
    end
  endtask

  task read_plain;
    begin
      next_address = 0;
      while (ch != -1) begin
        if (ch == " " || ch == "\t" || ch == "\n" || ch == "\r") ch = $fgetc(file);
        else if (ch == "/") begin
          while (ch != -1 && ch != "\n") ch = $fgetc(file);
        end else if (ch == "@") begin
          ch = $fgetc(file);
          read_number;
          next_address = word;
        end else if (hex_digit(ch) >= 0) begin
          read_number;
          store(next_address);
          next_address = next_address + 1;
        end else begin
          $display("lpm_rom: %0s: unexpected character '%c'", lpm_file, ch);
          ch = $fgetc(file);
        end
      end
    end
  endtask

  // Two hexadecimal digits.
  task read_byte(output integer value);
    begin
      value = hex_digit($fgetc(file)) * 16;
      value = value + hex_digit($fgetc(file));
    end
  endtask

  // Records ":LLAAAATT...CC": data (00) holds whole words, most significant byte first; end of file (01);
  // extended segment (02) and linear (04) addresses move the base.
  task read_intel_hex;
    integer count, high, low, kind, sum, b, i, filled, at, base, extended;
    begin
      base = 0;
      kind = 0;
      while (ch != -1 && kind != 1) begin
        if (ch == ":") begin
          read_byte(count);
          read_byte(high);
          read_byte(low);
          read_byte(kind);
          sum = count + high + low + kind;
          at = base + high * 256 + low;
          word = {(lpm_width+8){1'b0}};
          filled = 0;
          extended = 0;
          for (i = 0; i < count; i = i + 1) begin
            read_byte(b);
            sum = sum + b;
            extended = extended * 256 + b;
            word = (word << 8) | b;
            filled = filled + 1;
            if (kind == 0 && filled == (lpm_width + 7) / 8) begin
              store(at);
              at = at + 1;
              filled = 0;
            end
          end
          read_byte(b);
          if ((sum + b) % 256 != 0) $display("lpm_rom: %0s: bad checksum in a record", lpm_file);
          if (kind == 2) base = extended * 16;
          if (kind == 4) base = extended * 65536;
        end
        ch = $fgetc(file);
      end
    end
  endtask

  initial begin
    for (k = 0; k < lpm_numwords; k = k + 1) memory[k] = {lpm_width{1'b0}};
    if (lpm_file != "UNUSED") begin
      file = $fopen(lpm_file, "r");
      if (file == 0) $display("lpm_rom: cannot open %0s", lpm_file);
      else begin
        ch = $fgetc(file);
        while (ch == " " || ch == "\t" || ch == "\n" || ch == "\r") ch = $fgetc(file);
        if (ch == ":") read_intel_hex;
        else read_plain;
        $fclose(file);
      end
    end
  end
`endif

  // The address is taken at the rising edge of inclock when registered, else used directly; so is q at
  // outclock.
  reg [lpm_widthad-1:0] address_reg = {lpm_widthad{1'b0}};
  always @(posedge inclock_p) address_reg <= address;
  wire [lpm_widthad-1:0] address_in = (lpm_address_control == "REGISTERED") ? address_reg : address;
  wire [lpm_width-1:0] read = (address_in < lpm_numwords) ? memory[address_in] : {lpm_width{1'b0}};
  reg [lpm_width-1:0] q_reg = {lpm_width{1'b0}};
  always @(posedge outclock_p) q_reg <= read;
  assign q = (lpm_outdata == "REGISTERED") ? q_reg : read;
endmodule
/* verilator lint_on WIDTH */
