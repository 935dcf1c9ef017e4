-- Package lpm_components: the two-dimensional logic type, the component declarations of the library modules,
-- and the reader of the memories' initialisation files. Modules that take several words (lpm_mux, lpm_and,
-- lpm_or, lpm_xor) take them on one flattened bus, word k at bits k*lpm_width, as in Verilog.
library ieee;
use ieee.std_logic_1164.all;

package lpm_components is

  type STD_LOGIC_2D is array (NATURAL RANGE <>, NATURAL RANGE <>) of STD_LOGIC;

  -- The words of a memory.
  type LPM_MEMORY is array (NATURAL RANGE <>) of STD_LOGIC_VECTOR;

  -- The words an initialisation file gives (docs/hdl-models.md: Intel HEX when its first character is ':',
  -- else the plain format); the others are 0.
  impure function lpm_read_memory(file_name : STRING; width, words : NATURAL) return LPM_MEMORY;

  component lpm_counter
    generic (lpm_width : NATURAL; lpm_direction : STRING := "UNUSED"; lpm_modulus : NATURAL := 0;
             lpm_type : STRING := "LPM_COUNTER"; lpm_hint : STRING := "UNUSED");
    port (data : in STD_LOGIC_VECTOR(lpm_width-1 downto 0) := (others => '0');
          clock : in STD_LOGIC; clk_en, cnt_en, updown, cin : in STD_LOGIC := '1';
          aclr, aset, aload, sclr, sset, sload : in STD_LOGIC := '0';
          q : out STD_LOGIC_VECTOR(lpm_width-1 downto 0); cout : out STD_LOGIC);
  end component;

  component lpm_add_sub
    generic (lpm_width : NATURAL; lpm_direction : STRING := "UNUSED"; lpm_representation : STRING := "SIGNED";
             lpm_pipeline : NATURAL := 0; lpm_type : STRING := "LPM_ADD_SUB"; lpm_hint : STRING := "UNUSED");
    port (dataa, datab : in STD_LOGIC_VECTOR(lpm_width-1 downto 0); cin : in STD_LOGIC := 'Z';
          add_sub, clken : in STD_LOGIC := '1'; clock, aclr : in STD_LOGIC := '0';
          result : out STD_LOGIC_VECTOR(lpm_width-1 downto 0); cout, overflow : out STD_LOGIC);
  end component;

  component lpm_compare
    generic (lpm_width : NATURAL; lpm_representation : STRING := "UNSIGNED"; lpm_pipeline : NATURAL := 0;
             lpm_type : STRING := "LPM_COMPARE"; lpm_hint : STRING := "UNUSED");
    port (dataa, datab : in STD_LOGIC_VECTOR(lpm_width-1 downto 0); clock, aclr : in STD_LOGIC := '0';
          clken : in STD_LOGIC := '1'; alb, aeb, agb, ageb, aneb, aleb : out STD_LOGIC);
  end component;

  component lpm_mux
    generic (lpm_width : NATURAL; lpm_size : NATURAL; lpm_widths : NATURAL; lpm_pipeline : NATURAL := 0;
             lpm_type : STRING := "LPM_MUX"; lpm_hint : STRING := "UNUSED");
    port (data : in STD_LOGIC_VECTOR(lpm_size*lpm_width-1 downto 0);
          sel : in STD_LOGIC_VECTOR(lpm_widths-1 downto 0); clock, aclr : in STD_LOGIC := '0';
          clken : in STD_LOGIC := '1'; result : out STD_LOGIC_VECTOR(lpm_width-1 downto 0));
  end component;

  component lpm_decode
    generic (lpm_width : NATURAL; lpm_decodes : NATURAL; lpm_pipeline : NATURAL := 0;
             lpm_type : STRING := "LPM_DECODE"; lpm_hint : STRING := "UNUSED");
    port (data : in STD_LOGIC_VECTOR(lpm_width-1 downto 0); enable, clken : in STD_LOGIC := '1';
          clock, aclr : in STD_LOGIC := '0'; eq : out STD_LOGIC_VECTOR(lpm_decodes-1 downto 0));
  end component;

  component lpm_constant
    generic (lpm_width : NATURAL; lpm_cvalue : NATURAL; lpm_strength : STRING := "UNUSED";
             lpm_type : STRING := "LPM_CONSTANT"; lpm_hint : STRING := "UNUSED");
    port (result : out STD_LOGIC_VECTOR(lpm_width-1 downto 0));
  end component;

  component lpm_ram_dq
    generic (lpm_width : NATURAL; lpm_widthad : NATURAL; lpm_numwords : NATURAL := 0;
             lpm_indata : STRING := "REGISTERED"; lpm_address_control : STRING := "REGISTERED";
             lpm_outdata : STRING := "REGISTERED"; lpm_file : STRING := "UNUSED";
             lpm_type : STRING := "LPM_RAM_DQ"; lpm_hint : STRING := "UNUSED");
    port (data : in STD_LOGIC_VECTOR(lpm_width-1 downto 0); address : in STD_LOGIC_VECTOR(lpm_widthad-1 downto 0);
          we : in STD_LOGIC; inclock, outclock : in STD_LOGIC := '0';
          q : out STD_LOGIC_VECTOR(lpm_width-1 downto 0));
  end component;

  component lpm_shiftreg
    generic (lpm_width : NATURAL; lpm_direction : STRING := "LEFT"; lpm_type : STRING := "LPM_SHIFTREG";
             lpm_hint : STRING := "UNUSED");
    port (data : in STD_LOGIC_VECTOR(lpm_width-1 downto 0) := (others => '0'); clock : in STD_LOGIC;
          enable, shiftin : in STD_LOGIC := '1'; load, aclr, aset, sclr, sset : in STD_LOGIC := '0';
          q : out STD_LOGIC_VECTOR(lpm_width-1 downto 0); shiftout : out STD_LOGIC);
  end component;

  component lpm_inv
    generic (lpm_width : NATURAL; lpm_type : STRING := "LPM_INV"; lpm_hint : STRING := "UNUSED");
    port (data : in STD_LOGIC_VECTOR(lpm_width-1 downto 0); result : out STD_LOGIC_VECTOR(lpm_width-1 downto 0));
  end component;

  component lpm_and
    generic (lpm_width : NATURAL; lpm_size : NATURAL; lpm_type : STRING := "LPM_AND"; lpm_hint : STRING := "UNUSED");
    port (data : in STD_LOGIC_VECTOR(lpm_size*lpm_width-1 downto 0);
          result : out STD_LOGIC_VECTOR(lpm_width-1 downto 0));
  end component;

  component lpm_or
    generic (lpm_width : NATURAL; lpm_size : NATURAL; lpm_type : STRING := "LPM_OR"; lpm_hint : STRING := "UNUSED");
    port (data : in STD_LOGIC_VECTOR(lpm_size*lpm_width-1 downto 0);
          result : out STD_LOGIC_VECTOR(lpm_width-1 downto 0));
  end component;

  component lpm_xor
    generic (lpm_width : NATURAL; lpm_size : NATURAL; lpm_type : STRING := "LPM_XOR"; lpm_hint : STRING := "UNUSED");
    port (data : in STD_LOGIC_VECTOR(lpm_size*lpm_width-1 downto 0);
          result : out STD_LOGIC_VECTOR(lpm_width-1 downto 0));
  end component;

  component lpm_bustri
    generic (lpm_width : NATURAL; lpm_type : STRING := "LPM_BUSTRI"; lpm_hint : STRING := "UNUSED");
    port (tridata : inout STD_LOGIC_VECTOR(lpm_width-1 downto 0);
          data : in STD_LOGIC_VECTOR(lpm_width-1 downto 0) := (others => '0');
          enabletr, enabledt : in STD_LOGIC := '0'; result : out STD_LOGIC_VECTOR(lpm_width-1 downto 0));
  end component;

  component lpm_clshift
    generic (lpm_width : NATURAL; lpm_widthdist : NATURAL; lpm_shifttype : STRING := "LOGICAL";
             lpm_type : STRING := "LPM_CLSHIFT"; lpm_hint : STRING := "UNUSED");
    port (data : in STD_LOGIC_VECTOR(lpm_width-1 downto 0);
          distance : in STD_LOGIC_VECTOR(lpm_widthdist-1 downto 0); direction : in STD_LOGIC := '0';
          result : out STD_LOGIC_VECTOR(lpm_width-1 downto 0); overflow, underflow : out STD_LOGIC);
  end component;

  component lpm_mult
    generic (lpm_widtha : NATURAL; lpm_widthb : NATURAL; lpm_widthp : NATURAL;
             lpm_representation : STRING := "UNSIGNED"; lpm_pipeline : NATURAL := 0; lpm_type : STRING := "LPM_MULT";
             lpm_hint : STRING := "UNUSED");
    port (dataa : in STD_LOGIC_VECTOR(lpm_widtha-1 downto 0); datab : in STD_LOGIC_VECTOR(lpm_widthb-1 downto 0);
          clock, aclr : in STD_LOGIC := '0'; clken : in STD_LOGIC := '1';
          result : out STD_LOGIC_VECTOR(lpm_widthp-1 downto 0));
  end component;

  component lpm_divide
    generic (lpm_widthn : NATURAL; lpm_widthd : NATURAL; lpm_nrepresentation : STRING := "UNSIGNED";
             lpm_drepresentation : STRING := "UNSIGNED"; lpm_remainderpositive : STRING := "TRUE";
             lpm_pipeline : NATURAL := 0; lpm_type : STRING := "LPM_DIVIDE"; lpm_hint : STRING := "UNUSED");
    port (numer : in STD_LOGIC_VECTOR(lpm_widthn-1 downto 0); denom : in STD_LOGIC_VECTOR(lpm_widthd-1 downto 0);
          clock, aclr : in STD_LOGIC := '0'; clken : in STD_LOGIC := '1';
          quotient : out STD_LOGIC_VECTOR(lpm_widthn-1 downto 0);
          remain : out STD_LOGIC_VECTOR(lpm_widthd-1 downto 0));
  end component;

  component lpm_abs
    generic (lpm_width : NATURAL; lpm_type : STRING := "LPM_ABS"; lpm_hint : STRING := "UNUSED");
    port (data : in STD_LOGIC_VECTOR(lpm_width-1 downto 0); result : out STD_LOGIC_VECTOR(lpm_width-1 downto 0);
          overflow : out STD_LOGIC);
  end component;

  component lpm_ff
    generic (lpm_width : NATURAL; lpm_avalue : INTEGER := -1; lpm_svalue : INTEGER := -1;
             lpm_fftype : STRING := "DFF"; lpm_type : STRING := "LPM_FF"; lpm_hint : STRING := "UNUSED");
    port (data : in STD_LOGIC_VECTOR(lpm_width-1 downto 0); clock : in STD_LOGIC; enable : in STD_LOGIC := '1';
          aclr, aset, aload, sclr, sset, sload : in STD_LOGIC := '0';
          q : out STD_LOGIC_VECTOR(lpm_width-1 downto 0));
  end component;

  component lpm_latch
    generic (lpm_width : NATURAL; lpm_avalue : INTEGER := -1; lpm_type : STRING := "LPM_LATCH";
             lpm_hint : STRING := "UNUSED");
    port (data : in STD_LOGIC_VECTOR(lpm_width-1 downto 0); gate : in STD_LOGIC;
          aclr, aset : in STD_LOGIC := '0'; q : out STD_LOGIC_VECTOR(lpm_width-1 downto 0));
  end component;

  component lpm_rom
    generic (lpm_width : NATURAL; lpm_widthad : NATURAL; lpm_numwords : NATURAL := 0;
             lpm_address_control : STRING := "REGISTERED"; lpm_outdata : STRING := "REGISTERED";
             lpm_file : STRING := "UNUSED"; lpm_type : STRING := "LPM_ROM"; lpm_hint : STRING := "UNUSED");
    port (address : in STD_LOGIC_VECTOR(lpm_widthad-1 downto 0); inclock, outclock : in STD_LOGIC := '0';
          q : out STD_LOGIC_VECTOR(lpm_width-1 downto 0));
  end component;

  component lpm_ram_dp
    generic (lpm_width : NATURAL; lpm_widthad : NATURAL; lpm_numwords : NATURAL := 0;
             lpm_rdaddress_control : STRING := "REGISTERED"; lpm_outdata : STRING := "REGISTERED";
             lpm_type : STRING := "LPM_RAM_DP"; lpm_hint : STRING := "UNUSED");
    port (data : in STD_LOGIC_VECTOR(lpm_width-1 downto 0);
          wraddress, rdaddress : in STD_LOGIC_VECTOR(lpm_widthad-1 downto 0); wren, wrclock : in STD_LOGIC;
          rden, wrclken, rdclken : in STD_LOGIC := '1'; rdclock : in STD_LOGIC := '0';
          q : out STD_LOGIC_VECTOR(lpm_width-1 downto 0));
  end component;

  component scfifo
    generic (lpm_width : NATURAL; lpm_numwords : NATURAL; lpm_widthu : NATURAL := 1;
             lpm_showahead : STRING := "OFF"; almost_full_value, almost_empty_value : NATURAL := 0;
             lpm_type : STRING := "scfifo"; lpm_hint : STRING := "UNUSED");
    port (data : in STD_LOGIC_VECTOR(lpm_width-1 downto 0); clock, wrreq, rdreq : in STD_LOGIC;
          aclr, sclr : in STD_LOGIC := '0'; q : out STD_LOGIC_VECTOR(lpm_width-1 downto 0);
          empty, full, almost_full, almost_empty : out STD_LOGIC;
          usedw : out STD_LOGIC_VECTOR(lpm_widthu-1 downto 0));
  end component;

  component dcfifo
    generic (lpm_width : NATURAL; lpm_numwords : NATURAL; lpm_widthu : NATURAL := 1;
             lpm_showahead : STRING := "OFF"; rdsync_delaypipe, wrsync_delaypipe : NATURAL := 3;
             lpm_type : STRING := "dcfifo"; lpm_hint : STRING := "UNUSED");
    port (data : in STD_LOGIC_VECTOR(lpm_width-1 downto 0); wrclk, wrreq, rdclk, rdreq : in STD_LOGIC;
          aclr : in STD_LOGIC := '0'; q : out STD_LOGIC_VECTOR(lpm_width-1 downto 0);
          rdempty, rdfull, wrempty, wrfull : out STD_LOGIC;
          rdusedw, wrusedw : out STD_LOGIC_VECTOR(lpm_widthu-1 downto 0));
  end component;

end package lpm_components;

library ieee;
use ieee.numeric_std.all;
use std.textio.all;

package body lpm_components is

  function hex_digit(c : CHARACTER) return INTEGER is
  begin
    case c is
      when '0' to '9' => return CHARACTER'pos(c) - CHARACTER'pos('0');
      when 'a' to 'f' => return CHARACTER'pos(c) - CHARACTER'pos('a') + 10;
      when 'A' to 'F' => return CHARACTER'pos(c) - CHARACTER'pos('A') + 10;
      when others => return -1;
    end case;
  end function;

  function is_blank(c : CHARACTER) return BOOLEAN is
  begin
    return c = ' ' or c = HT or c = CR or c = LF;
  end function;

  impure function lpm_read_memory(file_name : STRING; width, words : NATURAL) return LPM_MEMORY is
    file contents : TEXT;
    variable status : FILE_OPEN_STATUS;
    variable l : LINE;
    variable memory : LPM_MEMORY(0 to words - 1)(width - 1 downto 0) := (others => (others => '0'));
    variable word : UNSIGNED(width + 7 downto 0);
    variable first_seen, intel, done : BOOLEAN := false;
    variable i, next_address, base, count, kind, sum, value, extended, filled, at : INTEGER := 0;

    procedure store is
    begin
      if at >= 0 and at < words then
        memory(at) := STD_LOGIC_VECTOR(word(width - 1 downto 0));
      else
        report "lpm: " & file_name & ": address " & INTEGER'image(at) & " is outside the memory" severity error;
      end if;
    end procedure;

    -- Two hexadecimal digits of the line at i.
    procedure read_byte is
    begin
      value := 0;
      if i + 1 <= l'high and hex_digit(l(i)) >= 0 and hex_digit(l(i + 1)) >= 0 then
        value := hex_digit(l(i)) * 16 + hex_digit(l(i + 1));
      else
        report "lpm: " & file_name & ": bad Intel HEX record" severity error;
      end if;
      i := i + 2;
      sum := sum + value;
    end procedure;

    -- A hexadecimal number of the line at i into word and (saturated) at.
    procedure read_number is
    begin
      word := (others => '0');
      at := 0;
      while i <= l'high and hex_digit(l(i)) >= 0 loop
        word := word(word'high - 4 downto 0) & to_unsigned(hex_digit(l(i)), 4);
        if at < 2 ** 26 then at := at * 16 + hex_digit(l(i)); end if;
        i := i + 1;
      end loop;
    end procedure;

    -- Records ":LLAAAATT...CC": data (00) holds whole words, most significant byte first; end of file (01);
    -- extended segment (02) and linear (04) addresses move the base.
    procedure read_record is
      variable high : INTEGER;
    begin
      i := i + 1;
      sum := 0;
      read_byte;
      count := value;
      read_byte;
      high := value;
      read_byte;
      at := base + high * 256 + value;
      read_byte;
      kind := value;
      word := (others => '0');
      filled := 0;
      extended := 0;
      for b in 1 to count loop
        read_byte;
        if extended < 2 ** 22 then extended := extended * 256 + value; end if;
        word := word(word'high - 8 downto 0) & to_unsigned(value, 8);
        filled := filled + 1;
        if kind = 0 and filled = (width + 7) / 8 then
          store;
          at := at + 1;
          filled := 0;
        end if;
      end loop;
      read_byte;
      if sum mod 256 /= 0 then
        report "lpm: " & file_name & ": bad checksum in a record" severity error;
      end if;
      if kind = 1 then done := true; end if;
      if kind = 2 then base := minimum(extended, 2 ** 26) * 16; end if;
      if kind = 4 then base := minimum(extended, 2 ** 14) * 65536; end if;
    end procedure;
  begin
    file_open(status, contents, file_name, READ_MODE);
    if status /= OPEN_OK then
      report "lpm: cannot open " & file_name severity error;
      return memory;
    end if;
    while not done and not endfile(contents) loop
      readline(contents, l);
      i := l'low;
      while not done and i <= l'high loop
        if is_blank(l(i)) then
          i := i + 1;
        else
          if not first_seen then
            intel := l(i) = ':';
            first_seen := true;
          end if;
          if intel then
            if l(i) = ':' then read_record; else i := i + 1; end if;
          elsif l(i) = '/' then
            i := l'high + 1;
          elsif l(i) = '@' then
            i := i + 1;
            read_number;
            next_address := at;
          elsif hex_digit(l(i)) >= 0 then
            read_number;
            at := next_address;
            store;
            next_address := next_address + 1;
          else
            report "lpm: " & file_name & ": unexpected character '" & l(i) & "'" severity error;
            i := i + 1;
          end if;
        end if;
      end loop;
    end loop;
    file_close(contents);
    return memory;
  end function;

end package body lpm_components;
