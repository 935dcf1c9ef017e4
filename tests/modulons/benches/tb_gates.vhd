-- Bench of the gate variations and64x3 (AND of 3 words of 64 bits), or1x5 (OR of 5 bits) and xor8x4 (XOR of 4
-- bytes), against vectors/gates.vec.
library ieee;
use ieee.std_logic_1164.all;
use std.textio.all;
use work.bench_vectors.all;

entity tb_gates is
  generic (vectors : STRING);
end tb_gates;

architecture bench of tb_gates is
  signal and64x3_data : STD_LOGIC_VECTOR(191 downto 0) := (others => '0');
  signal or1x5_data : STD_LOGIC_VECTOR(4 downto 0) := (others => '0');
  signal xor8x4_data : STD_LOGIC_VECTOR(31 downto 0) := (others => '0');
  signal and64x3_result : STD_LOGIC_VECTOR(63 downto 0);
  signal or1x5_result : STD_LOGIC_VECTOR(0 downto 0);
  signal xor8x4_result : STD_LOGIC_VECTOR(7 downto 0);
begin
  and64x3_dut : entity work.and64x3 port map (data => and64x3_data, result => and64x3_result);
  or1x5_dut : entity work.or1x5 port map (data => or1x5_data, result => or1x5_result);
  xor8x4_dut : entity work.xor8x4 port map (data => xor8x4_data, result => xor8x4_result);

  process
    file f : text;
    variable l : line;
    variable t : tally;
    variable more : BOOLEAN;
    variable and64x3_result_want : STD_LOGIC_VECTOR(63 downto 0);
    variable or1x5_result_want : STD_LOGIC_VECTOR(0 downto 0);
    variable xor8x4_result_want : STD_LOGIC_VECTOR(7 downto 0);
  begin
    open_vectors(f, vectors, t);
    loop
      next_line(f, l, t, more);
      exit when not more;
      apply(l, and64x3_data);
      apply(l, or1x5_data);
      apply(l, xor8x4_data);
      read_value(l, and64x3_result_want);
      read_value(l, or1x5_result_want);
      read_value(l, xor8x4_result_want);
      wait for 1 ns;
      check("and64x3.result", and64x3_result, and64x3_result_want, t);
      check("or1x5.result", or1x5_result, or1x5_result_want, t);
      check("xor8x4.result", xor8x4_result, xor8x4_result_want, t);
    end loop;
    finish(t);
    wait;
  end process;
end bench;
