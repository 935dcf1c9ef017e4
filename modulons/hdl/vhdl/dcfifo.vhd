-- Dual-clock FIFO library module: words written at wrclk are read back in order at rdclk. Each side keeps its
-- position and sees the other's through a chain of registers, in Gray code so that a position caught while it
-- changes is either the old or the new one; each side has its own empty, full and used-words outputs.
library ieee;
use ieee.std_logic_1164.all;
use ieee.numeric_std.all;

entity dcfifo is
  generic (lpm_width : NATURAL; lpm_numwords : NATURAL; lpm_widthu : NATURAL := 1;
           lpm_showahead : STRING := "OFF"; rdsync_delaypipe, wrsync_delaypipe : NATURAL := 3;
           lpm_type : STRING := "dcfifo"; lpm_hint : STRING := "UNUSED");
  port (data : in STD_LOGIC_VECTOR(lpm_width-1 downto 0); wrclk, wrreq, rdclk, rdreq : in STD_LOGIC;
        aclr : in STD_LOGIC := '0'; q : out STD_LOGIC_VECTOR(lpm_width-1 downto 0);
        rdempty, rdfull, wrempty, wrfull : out STD_LOGIC;
        rdusedw, wrusedw : out STD_LOGIC_VECTOR(lpm_widthu-1 downto 0));
end dcfifo;

architecture behaviour of dcfifo is
  -- Positions count words modulo 2 ** (lpm_widthu + 1): one bit more than the address, so that a full FIFO
  -- and an empty one differ.
  subtype position is UNSIGNED(lpm_widthu downto 0);
  type chain is array (NATURAL range <>) of position;
  type memory_type is array (0 to 2 ** lpm_widthu - 1) of STD_LOGIC_VECTOR(lpm_width-1 downto 0);

  function to_gray(value : position) return position is
  begin
    return value xor shift_right(value, 1);
  end function;

  function from_gray(gray : position) return position is
    variable value : position;
  begin
    value(lpm_widthu) := gray(lpm_widthu);
    for i in lpm_widthu - 1 downto 0 loop
      value(i) := value(i + 1) xor gray(i);
    end loop;
    return value;
  end function;

  function flag(condition : BOOLEAN) return STD_LOGIC is
  begin
    if condition then return '1'; end if;
    return '0';
  end function;

  function address(value : position) return NATURAL is
  begin
    return to_integer(value(lpm_widthu - 1 downto 0));
  end function;

  signal memory : memory_type := (others => (others => '0'));
  signal write_at, write_gray, read_at, read_gray, write_used, read_used : position := (others => '0');
  -- The other side's position in Gray code, oldest last.
  signal read_chain : chain(1 to wrsync_delaypipe) := (others => (others => '0'));
  signal write_chain : chain(1 to rdsync_delaypipe) := (others => (others => '0'));
  signal q_reg : STD_LOGIC_VECTOR(lpm_width-1 downto 0) := (others => '0');
begin
  -- The write side.
  write_used <= write_at - from_gray(read_chain(wrsync_delaypipe));
  process (wrclk, aclr)
  begin
    if aclr = '1' then
      write_at <= (others => '0');
      write_gray <= (others => '0');
      read_chain <= (others => (others => '0'));
    elsif rising_edge(wrclk) then
      read_chain <= read_gray & read_chain(1 to wrsync_delaypipe - 1);
      if wrreq = '1' and write_used /= lpm_numwords then
        memory(address(write_at)) <= data;
        write_at <= write_at + 1;
        write_gray <= to_gray(write_at + 1);
      end if;
    end if;
  end process;
  wrempty <= flag(write_used = 0);
  wrfull <= flag(write_used = lpm_numwords);
  wrusedw <= STD_LOGIC_VECTOR(write_used(lpm_widthu - 1 downto 0));

  -- The read side; without show-ahead q takes the word read at the clock edge, with it q shows the oldest word.
  read_used <= from_gray(write_chain(rdsync_delaypipe)) - read_at;
  process (rdclk, aclr)
  begin
    if aclr = '1' then
      read_at <= (others => '0');
      read_gray <= (others => '0');
      write_chain <= (others => (others => '0'));
      q_reg <= (others => '0');
    elsif rising_edge(rdclk) then
      write_chain <= write_gray & write_chain(1 to rdsync_delaypipe - 1);
      if rdreq = '1' and read_used /= 0 then
        q_reg <= memory(address(read_at));
        read_at <= read_at + 1;
        read_gray <= to_gray(read_at + 1);
      end if;
    end if;
  end process;
  rdempty <= flag(read_used = 0);
  rdfull <= flag(read_used = lpm_numwords);
  rdusedw <= STD_LOGIC_VECTOR(read_used(lpm_widthu - 1 downto 0));
  q <= memory(address(read_at)) when lpm_showahead = "ON" else q_reg;
end behaviour;
