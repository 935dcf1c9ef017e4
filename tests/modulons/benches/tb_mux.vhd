-- Bench of the multiplexer variations mux8x5_p3 (5 bytes, pipeline 3), mux64x2 and mux1x3, against
-- vectors/mux.vec.
library ieee;
use ieee.std_logic_1164.all;
use std.textio.all;
use work.bench_vectors.all;

entity tb_mux is
  generic (vectors : STRING);
end tb_mux;

architecture bench of tb_mux is
  signal clock : STD_LOGIC := '0';
  signal mux8x5_p3_data : STD_LOGIC_VECTOR(39 downto 0) := (others => '0');
  signal mux8x5_p3_sel : STD_LOGIC_VECTOR(2 downto 0) := (others => '0');
  signal mux64x2_data : STD_LOGIC_VECTOR(127 downto 0) := (others => '0');
  signal mux64x2_sel : STD_LOGIC_VECTOR(0 downto 0) := (others => '0');
  signal mux1x3_data : STD_LOGIC_VECTOR(2 downto 0) := (others => '0');
  signal mux1x3_sel : STD_LOGIC_VECTOR(1 downto 0) := (others => '0');
  signal mux8x5_p3_result : STD_LOGIC_VECTOR(7 downto 0);
  signal mux64x2_result : STD_LOGIC_VECTOR(63 downto 0);
  signal mux1x3_result : STD_LOGIC_VECTOR(0 downto 0);
begin
  mux8x5_p3_dut : entity work.mux8x5_p3 port map (data => mux8x5_p3_data, sel => mux8x5_p3_sel,
    clock => clock, result => mux8x5_p3_result);
  mux64x2_dut : entity work.mux64x2 port map (data => mux64x2_data, sel => mux64x2_sel,
    result => mux64x2_result);
  mux1x3_dut : entity work.mux1x3 port map (data => mux1x3_data, sel => mux1x3_sel, result => mux1x3_result);

  process
    file f : text;
    variable l : line;
    variable t : tally;
    variable more : BOOLEAN;
    variable mux8x5_p3_result_want : STD_LOGIC_VECTOR(7 downto 0);
    variable mux64x2_result_want : STD_LOGIC_VECTOR(63 downto 0);
    variable mux1x3_result_want : STD_LOGIC_VECTOR(0 downto 0);
  begin
    open_vectors(f, vectors, t);
    loop
      next_line(f, l, t, more);
      exit when not more;
      apply(l, mux8x5_p3_data);
      apply(l, mux8x5_p3_sel);
      apply(l, mux64x2_data);
      apply(l, mux64x2_sel);
      apply(l, mux1x3_data);
      apply(l, mux1x3_sel);
      read_value(l, mux8x5_p3_result_want);
      read_value(l, mux64x2_result_want);
      read_value(l, mux1x3_result_want);
      wait for 1 ns;
      check("mux8x5_p3.result", mux8x5_p3_result, mux8x5_p3_result_want, t);
      check("mux64x2.result", mux64x2_result, mux64x2_result_want, t);
      check("mux1x3.result", mux1x3_result, mux1x3_result_want, t);
      clock <= '1';
      wait for 1 ns;
      clock <= '0';
    end loop;
    finish(t);
    wait;
  end process;
end bench;
