-- Dual-port memory library module: writes at the write clock, reads at its own address, registered at the read
-- clock or direct.
library ieee;
use ieee.std_logic_1164.all;
use ieee.numeric_std.all;

entity lpm_ram_dp is
  generic (lpm_width : NATURAL; lpm_widthad : NATURAL; lpm_numwords : NATURAL := 0;
           lpm_rdaddress_control : STRING := "REGISTERED"; lpm_outdata : STRING := "REGISTERED";
           lpm_type : STRING := "LPM_RAM_DP"; lpm_hint : STRING := "UNUSED");
  port (data : in STD_LOGIC_VECTOR(lpm_width-1 downto 0);
        wraddress, rdaddress : in STD_LOGIC_VECTOR(lpm_widthad-1 downto 0); wren, wrclock : in STD_LOGIC;
        rden, wrclken, rdclken : in STD_LOGIC := '1'; rdclock : in STD_LOGIC := '0';
        q : out STD_LOGIC_VECTOR(lpm_width-1 downto 0));
end lpm_ram_dp;

architecture behaviour of lpm_ram_dp is
  function word_count return NATURAL is
  begin
    if lpm_numwords = 0 then return 2 ** lpm_widthad; end if;
    return lpm_numwords;
  end function;
  constant words : NATURAL := word_count;
  type memory_type is array (0 to words-1) of STD_LOGIC_VECTOR(lpm_width-1 downto 0);
  signal memory : memory_type := (others => (others => '0'));
  signal address_reg, address_in : STD_LOGIC_VECTOR(lpm_widthad-1 downto 0) := (others => '0');
  signal read_word, q_reg : STD_LOGIC_VECTOR(lpm_width-1 downto 0) := (others => '0');
begin
  -- A write takes data at the rising edge of wrclock while wren and wrclken are high.
  process (wrclock)
    variable row : NATURAL;
  begin
    if rising_edge(wrclock) and wren = '1' and wrclken = '1' then
      row := to_integer(UNSIGNED(wraddress));
      if row < words then memory(row) <= data; end if;
    end if;
  end process;

  -- The read address and q are taken at the rising edge of rdclock while rden and rdclken are high when they
  -- are registered, else used directly.
  address_in <= address_reg when lpm_rdaddress_control = "REGISTERED" else rdaddress;
  process (memory, address_in)
    variable row : NATURAL;
  begin
    row := to_integer(UNSIGNED(address_in));
    if row < words then read_word <= memory(row); else read_word <= (others => '0'); end if;
  end process;

  process (rdclock)
  begin
    if rising_edge(rdclock) and rden = '1' and rdclken = '1' then
      address_reg <= rdaddress;
      q_reg <= read_word;
    end if;
  end process;
  q <= q_reg when lpm_outdata = "REGISTERED" else read_word;
end behaviour;
