-- Bench of the inverter variations inv1 and inv64, against vectors/inv.vec.
library ieee;
use ieee.std_logic_1164.all;
use std.textio.all;
use work.bench_vectors.all;

entity tb_inv is
  generic (vectors : STRING);
end tb_inv;

architecture bench of tb_inv is
  signal inv1_data : STD_LOGIC_VECTOR(0 downto 0) := (others => '0');
  signal inv64_data : STD_LOGIC_VECTOR(63 downto 0) := (others => '0');
  signal inv1_result : STD_LOGIC_VECTOR(0 downto 0);
  signal inv64_result : STD_LOGIC_VECTOR(63 downto 0);
begin
  inv1_dut : entity work.inv1 port map (data => inv1_data, result => inv1_result);
  inv64_dut : entity work.inv64 port map (data => inv64_data, result => inv64_result);

  process
    file f : text;
    variable l : line;
    variable t : tally;
    variable more : BOOLEAN;
    variable inv1_result_want : STD_LOGIC_VECTOR(0 downto 0);
    variable inv64_result_want : STD_LOGIC_VECTOR(63 downto 0);
  begin
    open_vectors(f, vectors, t);
    loop
      next_line(f, l, t, more);
      exit when not more;
      apply(l, inv1_data);
      apply(l, inv64_data);
      read_value(l, inv1_result_want);
      read_value(l, inv64_result_want);
      wait for 1 ns;
      check("inv1.result", inv1_result, inv1_result_want, t);
      check("inv64.result", inv64_result, inv64_result_want, t);
    end loop;
    finish(t);
    wait;
  end process;
end bench;
