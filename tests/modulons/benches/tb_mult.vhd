-- Bench of the multiplier variations mult_u8 (unsigned, top 12 bits of the product), mult_s8x6_p3 (signed,
-- pipeline 3 with clken and aclr), mult_s64 (signed 64 x 64) and mult_u1_p3 (one bit, pipeline 3), against
-- vectors/mult.vec.
library ieee;
use ieee.std_logic_1164.all;
use std.textio.all;
use work.bench_vectors.all;

entity tb_mult is
  generic (vectors : STRING);
end tb_mult;

architecture bench of tb_mult is
  signal clock : STD_LOGIC := '0';
  signal mult_u8_dataa : STD_LOGIC_VECTOR(7 downto 0) := (others => '0');
  signal mult_u8_datab : STD_LOGIC_VECTOR(7 downto 0) := (others => '0');
  signal mult_s8x6_p3_dataa : STD_LOGIC_VECTOR(7 downto 0) := (others => '0');
  signal mult_s8x6_p3_datab : STD_LOGIC_VECTOR(5 downto 0) := (others => '0');
  signal mult_s8x6_p3_clken : STD_LOGIC := '0';
  signal mult_s8x6_p3_aclr : STD_LOGIC := '0';
  signal mult_s64_dataa : STD_LOGIC_VECTOR(63 downto 0) := (others => '0');
  signal mult_s64_datab : STD_LOGIC_VECTOR(63 downto 0) := (others => '0');
  signal mult_u1_p3_dataa : STD_LOGIC_VECTOR(0 downto 0) := (others => '0');
  signal mult_u1_p3_datab : STD_LOGIC_VECTOR(0 downto 0) := (others => '0');
  signal mult_u8_result : STD_LOGIC_VECTOR(11 downto 0);
  signal mult_s8x6_p3_result : STD_LOGIC_VECTOR(13 downto 0);
  signal mult_s64_result : STD_LOGIC_VECTOR(127 downto 0);
  signal mult_u1_p3_result : STD_LOGIC_VECTOR(1 downto 0);
begin
  mult_u8_dut : entity work.mult_u8 port map (dataa => mult_u8_dataa, datab => mult_u8_datab,
    result => mult_u8_result);
  mult_s8x6_p3_dut : entity work.mult_s8x6_p3 port map (dataa => mult_s8x6_p3_dataa,
    datab => mult_s8x6_p3_datab, clken => mult_s8x6_p3_clken, aclr => mult_s8x6_p3_aclr, clock => clock,
    result => mult_s8x6_p3_result);
  mult_s64_dut : entity work.mult_s64 port map (dataa => mult_s64_dataa, datab => mult_s64_datab,
    result => mult_s64_result);
  mult_u1_p3_dut : entity work.mult_u1_p3 port map (dataa => mult_u1_p3_dataa, datab => mult_u1_p3_datab,
    clock => clock, result => mult_u1_p3_result);

  process
    file f : text;
    variable l : line;
    variable t : tally;
    variable more : BOOLEAN;
    variable mult_u8_result_want : STD_LOGIC_VECTOR(11 downto 0);
    variable mult_s8x6_p3_result_want : STD_LOGIC_VECTOR(13 downto 0);
    variable mult_s64_result_want : STD_LOGIC_VECTOR(127 downto 0);
    variable mult_u1_p3_result_want : STD_LOGIC_VECTOR(1 downto 0);
  begin
    open_vectors(f, vectors, t);
    loop
      next_line(f, l, t, more);
      exit when not more;
      apply(l, mult_u8_dataa);
      apply(l, mult_u8_datab);
      apply(l, mult_s8x6_p3_dataa);
      apply(l, mult_s8x6_p3_datab);
      apply(l, mult_s8x6_p3_clken);
      apply(l, mult_s8x6_p3_aclr);
      apply(l, mult_s64_dataa);
      apply(l, mult_s64_datab);
      apply(l, mult_u1_p3_dataa);
      apply(l, mult_u1_p3_datab);
      read_value(l, mult_u8_result_want);
      read_value(l, mult_s8x6_p3_result_want);
      read_value(l, mult_s64_result_want);
      read_value(l, mult_u1_p3_result_want);
      wait for 1 ns;
      check("mult_u8.result", mult_u8_result, mult_u8_result_want, t);
      check("mult_s8x6_p3.result", mult_s8x6_p3_result, mult_s8x6_p3_result_want, t);
      check("mult_s64.result", mult_s64_result, mult_s64_result_want, t);
      check("mult_u1_p3.result", mult_u1_p3_result, mult_u1_p3_result_want, t);
      clock <= '1';
      wait for 1 ns;
      clock <= '0';
    end loop;
    finish(t);
    wait;
  end process;
end bench;
