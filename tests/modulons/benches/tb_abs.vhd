-- Bench of the absolute value variations abs1, abs8 and abs64, against vectors/abs.vec.
library ieee;
use ieee.std_logic_1164.all;
use std.textio.all;
use work.bench_vectors.all;

entity tb_abs is
  generic (vectors : STRING);
end tb_abs;

architecture bench of tb_abs is
  signal abs1_data : STD_LOGIC_VECTOR(0 downto 0) := (others => '0');
  signal abs8_data : STD_LOGIC_VECTOR(7 downto 0) := (others => '0');
  signal abs64_data : STD_LOGIC_VECTOR(63 downto 0) := (others => '0');
  signal abs1_result : STD_LOGIC_VECTOR(0 downto 0);
  signal abs1_overflow : STD_LOGIC;
  signal abs8_result : STD_LOGIC_VECTOR(7 downto 0);
  signal abs8_overflow : STD_LOGIC;
  signal abs64_result : STD_LOGIC_VECTOR(63 downto 0);
  signal abs64_overflow : STD_LOGIC;
begin
  abs1_dut : entity work.abs1 port map (data => abs1_data, result => abs1_result, overflow => abs1_overflow);
  abs8_dut : entity work.abs8 port map (data => abs8_data, result => abs8_result, overflow => abs8_overflow);
  abs64_dut : entity work.abs64 port map (data => abs64_data, result => abs64_result,
    overflow => abs64_overflow);

  process
    file f : text;
    variable l : line;
    variable t : tally;
    variable more : BOOLEAN;
    variable abs1_result_want : STD_LOGIC_VECTOR(0 downto 0);
    variable abs1_overflow_want : STD_LOGIC;
    variable abs8_result_want : STD_LOGIC_VECTOR(7 downto 0);
    variable abs8_overflow_want : STD_LOGIC;
    variable abs64_result_want : STD_LOGIC_VECTOR(63 downto 0);
    variable abs64_overflow_want : STD_LOGIC;
  begin
    open_vectors(f, vectors, t);
    loop
      next_line(f, l, t, more);
      exit when not more;
      apply(l, abs1_data);
      apply(l, abs8_data);
      apply(l, abs64_data);
      read_value(l, abs1_result_want);
      read_value(l, abs1_overflow_want);
      read_value(l, abs8_result_want);
      read_value(l, abs8_overflow_want);
      read_value(l, abs64_result_want);
      read_value(l, abs64_overflow_want);
      wait for 1 ns;
      check("abs1.result", abs1_result, abs1_result_want, t);
      check("abs1.overflow", abs1_overflow, abs1_overflow_want, t);
      check("abs8.result", abs8_result, abs8_result_want, t);
      check("abs8.overflow", abs8_overflow, abs8_overflow_want, t);
      check("abs64.result", abs64_result, abs64_result_want, t);
      check("abs64.overflow", abs64_overflow, abs64_overflow_want, t);
    end loop;
    finish(t);
    wait;
  end process;
end bench;
