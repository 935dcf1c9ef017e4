-- Package lpm_components: the two-dimensional logic type and the component declarations of the library modules.
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
    port (data : in STD_LOGIC_2D(lpm_size-1 downto 0, lpm_width-1 downto 0);
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

end package lpm_components;
