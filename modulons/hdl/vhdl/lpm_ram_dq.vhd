-- Single-port memory library module: one address for reading and writing, registered or direct paths.
library ieee;
use ieee.std_logic_1164.all;
use ieee.numeric_std.all;

entity lpm_ram_dq is
  generic (lpm_width : NATURAL; lpm_widthad : NATURAL; lpm_numwords : NATURAL := 0;
           lpm_indata : STRING := "REGISTERED"; lpm_address_control : STRING := "REGISTERED";
           lpm_outdata : STRING := "REGISTERED"; lpm_file : STRING := "UNUSED";
           lpm_type : STRING := "LPM_RAM_DQ"; lpm_hint : STRING := "UNUSED");
  port (data : in STD_LOGIC_VECTOR(lpm_width-1 downto 0); address : in STD_LOGIC_VECTOR(lpm_widthad-1 downto 0);
        we : in STD_LOGIC; inclock, outclock : in STD_LOGIC := '0';
        q : out STD_LOGIC_VECTOR(lpm_width-1 downto 0));
end lpm_ram_dq;

architecture behaviour of lpm_ram_dq is
  function word_count return NATURAL is
  begin
    if lpm_numwords = 0 then return 2 ** lpm_widthad; end if;
    return lpm_numwords;
  end function;
  constant words : NATURAL := word_count;
  type memory_type is array (0 to words-1) of STD_LOGIC_VECTOR(lpm_width-1 downto 0);
  signal memory : memory_type := (others => (others => '0'));
  signal data_reg : STD_LOGIC_VECTOR(lpm_width-1 downto 0) := (others => '0');
  signal address_reg : STD_LOGIC_VECTOR(lpm_widthad-1 downto 0) := (others => '0');
  signal we_reg : STD_LOGIC := '0';
  signal data_in : STD_LOGIC_VECTOR(lpm_width-1 downto 0);
  signal address_in : STD_LOGIC_VECTOR(lpm_widthad-1 downto 0);
  signal we_in : STD_LOGIC;
  signal read_word, q_reg : STD_LOGIC_VECTOR(lpm_width-1 downto 0) := (others => '0');
begin
  -- Inputs are taken at the rising edge of inclock when registered, else used directly.
  process (inclock)
  begin
    if rising_edge(inclock) then
      data_reg <= data;
      address_reg <= address;
      we_reg <= we;
    end if;
  end process;
  data_in <= data_reg when lpm_indata = "REGISTERED" else data;
  address_in <= address_reg when lpm_address_control = "REGISTERED" else address;
  we_in <= we_reg when lpm_address_control = "REGISTERED" else we;

  -- With registered inputs the write happens at the clock edge; unregistered, while we is high.
  process (inclock, we_in, address_in, data_in)
    variable row : NATURAL;
  begin
    if lpm_address_control = "REGISTERED" then
      if rising_edge(inclock) and we = '1' then
        row := to_integer(UNSIGNED(address));
        if row < words then
          if lpm_indata = "REGISTERED" then memory(row) <= data; else memory(row) <= data_in; end if;
        end if;
      end if;
    elsif we_in = '1' then
      row := to_integer(UNSIGNED(address_in));
      if row < words then memory(row) <= data_in; end if;
    end if;
  end process;

  process (memory, address_in)
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
