-- Package lpm_components: the two-dimensional logic type and the component declarations of the library modules.
-- Modules that take several words (lpm_mux, lpm_and, lpm_or, lpm_xor) take them on one flattened bus, word k at
-- bits k*lpm_width, as in Verilog.
library ieee;
use ieee.std_logic_1164.all;

package lpm_components is

  type STD_LOGIC_2D is array (NATURAL RANGE <>, NATURAL RANGE <>) of STD_LOGIC;

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

end package lpm_components;
