-- Bench of the decoder variations dec3x6 (with enable) and dec1x2, against vectors/decode.vec.
library ieee;
use ieee.std_logic_1164.all;
use std.textio.all;
use work.bench_vectors.all;

entity tb_decode is
  generic (vectors : STRING);
end tb_decode;

architecture bench of tb_decode is
  signal dec3x6_data : STD_LOGIC_VECTOR(2 downto 0) := (others => '0');
  signal dec3x6_enable : STD_LOGIC := '0';
  signal dec1x2_data : STD_LOGIC_VECTOR(0 downto 0) := (others => '0');
  signal dec3x6_eq : STD_LOGIC_VECTOR(5 downto 0);
  signal dec1x2_eq : STD_LOGIC_VECTOR(1 downto 0);
begin
  dec3x6_dut : entity work.dec3x6 port map (data => dec3x6_data, enable => dec3x6_enable, eq => dec3x6_eq);
  dec1x2_dut : entity work.dec1x2 port map (data => dec1x2_data, eq => dec1x2_eq);

  process
    file f : text;
    variable l : line;
    variable t : tally;
    variable more : BOOLEAN;
    variable dec3x6_eq_want : STD_LOGIC_VECTOR(5 downto 0);
    variable dec1x2_eq_want : STD_LOGIC_VECTOR(1 downto 0);
  begin
    open_vectors(f, vectors, t);
    loop
      next_line(f, l, t, more);
      exit when not more;
      apply(l, dec3x6_data);
      apply(l, dec3x6_enable);
      apply(l, dec1x2_data);
      read_value(l, dec3x6_eq_want);
      read_value(l, dec1x2_eq_want);
      wait for 1 ns;
      check("dec3x6.eq", dec3x6_eq, dec3x6_eq_want, t);
      check("dec1x2.eq", dec1x2_eq, dec1x2_eq_want, t);
    end loop;
    finish(t);
    wait;
  end process;
end bench;
