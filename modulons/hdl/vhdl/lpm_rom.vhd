-- Read-only memory library module: its words come from an initialisation file, its address and output are
-- registered or direct.
library ieee;
use ieee.std_logic_1164.all;
use ieee.numeric_std.all;
library lpm;
use lpm.lpm_components.all;

entity lpm_rom is
  generic (lpm_width : NATURAL; lpm_widthad : NATURAL; lpm_numwords : NATURAL := 0;
           lpm_address_control : STRING := "REGISTERED"; lpm_outdata : STRING := "REGISTERED";
           lpm_file : STRING := "UNUSED"; lpm_type : STRING := "LPM_ROM"; lpm_hint : STRING := "UNUSED");
  port (address : in STD_LOGIC_VECTOR(lpm_widthad-1 downto 0); inclock, outclock : in STD_LOGIC := '0';
        q : out STD_LOGIC_VECTOR(lpm_width-1 downto 0));
end lpm_rom;

architecture behaviour of lpm_rom is
  function word_count return NATURAL is
  begin
    if lpm_numwords = 0 then return 2 ** lpm_widthad; end if;
    return lpm_numwords;
  end function;
  constant words : NATURAL := word_count;

  impure function contents return LPM_MEMORY is
  begin
    if lpm_file = "UNUSED" then
      return LPM_MEMORY'(0 to words - 1 => (lpm_width - 1 downto 0 => '0'));
    end if;
    return lpm_read_memory(lpm_file, lpm_width, words);
  end function;
  constant memory : LPM_MEMORY(0 to words - 1)(lpm_width - 1 downto 0) := contents;

  signal address_reg : STD_LOGIC_VECTOR(lpm_widthad-1 downto 0) := (others => '0');
  signal address_in : STD_LOGIC_VECTOR(lpm_widthad-1 downto 0);
  signal read_word, q_reg : STD_LOGIC_VECTOR(lpm_width-1 downto 0) := (others => '0');
begin
  -- The address is taken at the rising edge of inclock when registered, else used directly; so is q at
  -- outclock.
  process (inclock)
  begin
    if rising_edge(inclock) then
      address_reg <= address;
    end if;
  end process;
  address_in <= address_reg when lpm_address_control = "REGISTERED" else address;

  process (address_in)
    variable row : NATURAL;
  begin
    row := to_integer(UNSIGNED(address_in));
    if row < words then read_word <= memory(row); else read_word <= (others => '0'); end if;
  end process;

  process (outclock)
  begin
    if rising_edge(outclock) then
      q_reg <= read_word;
    end if;
  end process;
  q <= q_reg when lpm_outdata = "REGISTERED" else read_word;
end behaviour;
