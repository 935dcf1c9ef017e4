-- Single-clock FIFO library module: words written with wrreq are read back in order with rdreq, with empty,
-- full, almost full and almost empty flags and the number of words held.
library ieee;
use ieee.std_logic_1164.all;
use ieee.numeric_std.all;

entity scfifo is
  generic (lpm_width : NATURAL; lpm_numwords : NATURAL; lpm_widthu : NATURAL := 1;
           lpm_showahead : STRING := "OFF"; almost_full_value, almost_empty_value : NATURAL := 0;
           lpm_type : STRING := "scfifo"; lpm_hint : STRING := "UNUSED");
  port (data : in STD_LOGIC_VECTOR(lpm_width-1 downto 0); clock, wrreq, rdreq : in STD_LOGIC;
        aclr, sclr : in STD_LOGIC := '0'; q : out STD_LOGIC_VECTOR(lpm_width-1 downto 0);
        empty, full, almost_full, almost_empty : out STD_LOGIC;
        usedw : out STD_LOGIC_VECTOR(lpm_widthu-1 downto 0));
end scfifo;

architecture behaviour of scfifo is
  type memory_type is array (0 to lpm_numwords-1) of STD_LOGIC_VECTOR(lpm_width-1 downto 0);
  signal memory : memory_type := (others => (others => '0'));
  -- Read and write positions and the number of words held; a write is refused when full, a read when empty.
  signal count, write_at, read_at : NATURAL := 0;
  signal q_reg : STD_LOGIC_VECTOR(lpm_width-1 downto 0) := (others => '0');

  function flag(condition : BOOLEAN) return STD_LOGIC is
  begin
    if condition then return '1'; end if;
    return '0';
  end function;
begin
  process (clock, aclr)
    variable write, read : BOOLEAN;
  begin
    if aclr = '1' then
      count <= 0;
      write_at <= 0;
      read_at <= 0;
      q_reg <= (others => '0');
    elsif rising_edge(clock) then
      if sclr = '1' then
        count <= 0;
        write_at <= 0;
        read_at <= 0;
        q_reg <= (others => '0');
      else
        write := wrreq = '1' and count /= lpm_numwords;
        read := rdreq = '1' and count /= 0;
        if write then
          memory(write_at) <= data;
          write_at <= (write_at + 1) mod lpm_numwords;
        end if;
        -- Without show-ahead q takes the word read at the clock edge.
        if read then
          q_reg <= memory(read_at);
          read_at <= (read_at + 1) mod lpm_numwords;
        end if;
        if write and not read then count <= count + 1; end if;
        if read and not write then count <= count - 1; end if;
      end if;
    end if;
  end process;

  -- With show-ahead, q shows the oldest word.
  q <= memory(read_at) when lpm_showahead = "ON" else q_reg;
  empty <= flag(count = 0);
  full <= flag(count = lpm_numwords);
  almost_full <= flag(count >= almost_full_value);
  almost_empty <= flag(count < almost_empty_value);
  usedw <= STD_LOGIC_VECTOR(to_unsigned(count mod 2 ** lpm_widthu, lpm_widthu));
end behaviour;
