-- Bench of the shifter variations lsh8 (logical), ash64 (arithmetic), rot8 (rotating), all with a direction
-- input, and rsh1 (one bit, fixed right shift), against vectors/clshift.vec.
library ieee;
use ieee.std_logic_1164.all;
use std.textio.all;
use work.bench_vectors.all;

entity tb_clshift is
  generic (vectors : STRING);
end tb_clshift;

architecture bench of tb_clshift is
  signal lsh8_data : STD_LOGIC_VECTOR(7 downto 0) := (others => '0');
  signal lsh8_distance : STD_LOGIC_VECTOR(3 downto 0) := (others => '0');
  signal lsh8_direction : STD_LOGIC := '0';
  signal ash64_data : STD_LOGIC_VECTOR(63 downto 0) := (others => '0');
  signal ash64_distance : STD_LOGIC_VECTOR(6 downto 0) := (others => '0');
  signal ash64_direction : STD_LOGIC := '0';
  signal rot8_data : STD_LOGIC_VECTOR(7 downto 0) := (others => '0');
  signal rot8_distance : STD_LOGIC_VECTOR(3 downto 0) := (others => '0');
  signal rot8_direction : STD_LOGIC := '0';
  signal rsh1_data : STD_LOGIC_VECTOR(0 downto 0) := (others => '0');
  signal rsh1_distance : STD_LOGIC_VECTOR(1 downto 0) := (others => '0');
  signal lsh8_result : STD_LOGIC_VECTOR(7 downto 0);
  signal lsh8_overflow : STD_LOGIC;
  signal lsh8_underflow : STD_LOGIC;
  signal ash64_result : STD_LOGIC_VECTOR(63 downto 0);
  signal ash64_overflow : STD_LOGIC;
  signal ash64_underflow : STD_LOGIC;
  signal rot8_result : STD_LOGIC_VECTOR(7 downto 0);
  signal rsh1_result : STD_LOGIC_VECTOR(0 downto 0);
  signal rsh1_underflow : STD_LOGIC;
begin
  lsh8_dut : entity work.lsh8 port map (data => lsh8_data, distance => lsh8_distance,
    direction => lsh8_direction, result => lsh8_result, overflow => lsh8_overflow,
    underflow => lsh8_underflow);
  ash64_dut : entity work.ash64 port map (data => ash64_data, distance => ash64_distance,
    direction => ash64_direction, result => ash64_result, overflow => ash64_overflow,
    underflow => ash64_underflow);
  rot8_dut : entity work.rot8 port map (data => rot8_data, distance => rot8_distance,
    direction => rot8_direction, result => rot8_result);
  rsh1_dut : entity work.rsh1 port map (data => rsh1_data, distance => rsh1_distance, result => rsh1_result,
    underflow => rsh1_underflow);

  process
    file f : text;
    variable l : line;
    variable t : tally;
    variable more : BOOLEAN;
    variable lsh8_result_want : STD_LOGIC_VECTOR(7 downto 0);
    variable lsh8_overflow_want : STD_LOGIC;
    variable lsh8_underflow_want : STD_LOGIC;
    variable ash64_result_want : STD_LOGIC_VECTOR(63 downto 0);
    variable ash64_overflow_want : STD_LOGIC;
    variable ash64_underflow_want : STD_LOGIC;
    variable rot8_result_want : STD_LOGIC_VECTOR(7 downto 0);
    variable rsh1_result_want : STD_LOGIC_VECTOR(0 downto 0);
    variable rsh1_underflow_want : STD_LOGIC;
  begin
    open_vectors(f, vectors, t);
    loop
      next_line(f, l, t, more);
      exit when not more;
      apply(l, lsh8_data);
      apply(l, lsh8_distance);
      apply(l, lsh8_direction);
      apply(l, ash64_data);
      apply(l, ash64_distance);
      apply(l, ash64_direction);
      apply(l, rot8_data);
      apply(l, rot8_distance);
      apply(l, rot8_direction);
      apply(l, rsh1_data);
      apply(l, rsh1_distance);
      read_value(l, lsh8_result_want);
      read_value(l, lsh8_overflow_want);
      read_value(l, lsh8_underflow_want);
      read_value(l, ash64_result_want);
      read_value(l, ash64_overflow_want);
      read_value(l, ash64_underflow_want);
      read_value(l, rot8_result_want);
      read_value(l, rsh1_result_want);
      read_value(l, rsh1_underflow_want);
      wait for 1 ns;
      check("lsh8.result", lsh8_result, lsh8_result_want, t);
      check("lsh8.overflow", lsh8_overflow, lsh8_overflow_want, t);
      check("lsh8.underflow", lsh8_underflow, lsh8_underflow_want, t);
      check("ash64.result", ash64_result, ash64_result_want, t);
      check("ash64.overflow", ash64_overflow, ash64_overflow_want, t);
      check("ash64.underflow", ash64_underflow, ash64_underflow_want, t);
      check("rot8.result", rot8_result, rot8_result_want, t);
      check("rsh1.result", rsh1_result, rsh1_result_want, t);
      check("rsh1.underflow", rsh1_underflow, rsh1_underflow_want, t);
    end loop;
    finish(t);
    wait;
  end process;
end bench;
