-- Bench of the divider variations div_u8x4 (unsigned), div_s16x8_p3 (signed, remainder with the numerator's
-- sign, pipeline 3 with clken and aclr), div_s64 (signed 64 / 64) and div_u1_p3 (one bit, pipeline 3),
-- against vectors/divide.vec.
library ieee;
use ieee.std_logic_1164.all;
use std.textio.all;
use work.bench_vectors.all;

entity tb_divide is
  generic (vectors : STRING);
end tb_divide;

architecture bench of tb_divide is
  signal clock : STD_LOGIC := '0';
  signal div_u8x4_numer : STD_LOGIC_VECTOR(7 downto 0) := (others => '0');
  signal div_u8x4_denom : STD_LOGIC_VECTOR(3 downto 0) := (others => '0');
  signal div_s16x8_p3_numer : STD_LOGIC_VECTOR(15 downto 0) := (others => '0');
  signal div_s16x8_p3_denom : STD_LOGIC_VECTOR(7 downto 0) := (others => '0');
  signal div_s16x8_p3_clken : STD_LOGIC := '0';
  signal div_s16x8_p3_aclr : STD_LOGIC := '0';
  signal div_s64_numer : STD_LOGIC_VECTOR(63 downto 0) := (others => '0');
  signal div_s64_denom : STD_LOGIC_VECTOR(63 downto 0) := (others => '0');
  signal div_u1_p3_numer : STD_LOGIC_VECTOR(0 downto 0) := (others => '0');
  signal div_u1_p3_denom : STD_LOGIC_VECTOR(0 downto 0) := (others => '0');
  signal div_u8x4_quotient : STD_LOGIC_VECTOR(7 downto 0);
  signal div_u8x4_remain : STD_LOGIC_VECTOR(3 downto 0);
  signal div_s16x8_p3_quotient : STD_LOGIC_VECTOR(15 downto 0);
  signal div_s16x8_p3_remain : STD_LOGIC_VECTOR(7 downto 0);
  signal div_s64_quotient : STD_LOGIC_VECTOR(63 downto 0);
  signal div_s64_remain : STD_LOGIC_VECTOR(63 downto 0);
  signal div_u1_p3_quotient : STD_LOGIC_VECTOR(0 downto 0);
  signal div_u1_p3_remain : STD_LOGIC_VECTOR(0 downto 0);
begin
  div_u8x4_dut : entity work.div_u8x4 port map (numer => div_u8x4_numer, denom => div_u8x4_denom,
    quotient => div_u8x4_quotient, remain => div_u8x4_remain);
  div_s16x8_p3_dut : entity work.div_s16x8_p3 port map (numer => div_s16x8_p3_numer,
    denom => div_s16x8_p3_denom, clken => div_s16x8_p3_clken, aclr => div_s16x8_p3_aclr, clock => clock,
    quotient => div_s16x8_p3_quotient, remain => div_s16x8_p3_remain);
  div_s64_dut : entity work.div_s64 port map (numer => div_s64_numer, denom => div_s64_denom,
    quotient => div_s64_quotient, remain => div_s64_remain);
  div_u1_p3_dut : entity work.div_u1_p3 port map (numer => div_u1_p3_numer, denom => div_u1_p3_denom,
    clock => clock, quotient => div_u1_p3_quotient, remain => div_u1_p3_remain);

  process
    file f : text;
    variable l : line;
    variable t : tally;
    variable more : BOOLEAN;
    variable div_u8x4_quotient_want : STD_LOGIC_VECTOR(7 downto 0);
    variable div_u8x4_remain_want : STD_LOGIC_VECTOR(3 downto 0);
    variable div_s16x8_p3_quotient_want : STD_LOGIC_VECTOR(15 downto 0);
    variable div_s16x8_p3_remain_want : STD_LOGIC_VECTOR(7 downto 0);
    variable div_s64_quotient_want : STD_LOGIC_VECTOR(63 downto 0);
    variable div_s64_remain_want : STD_LOGIC_VECTOR(63 downto 0);
    variable div_u1_p3_quotient_want : STD_LOGIC_VECTOR(0 downto 0);
    variable div_u1_p3_remain_want : STD_LOGIC_VECTOR(0 downto 0);
  begin
    open_vectors(f, vectors, t);
    loop
      next_line(f, l, t, more);
      exit when not more;
      apply(l, div_u8x4_numer);
      apply(l, div_u8x4_denom);
      apply(l, div_s16x8_p3_numer);
      apply(l, div_s16x8_p3_denom);
      apply(l, div_s16x8_p3_clken);
      apply(l, div_s16x8_p3_aclr);
      apply(l, div_s64_numer);
      apply(l, div_s64_denom);
      apply(l, div_u1_p3_numer);
      apply(l, div_u1_p3_denom);
      read_value(l, div_u8x4_quotient_want);
      read_value(l, div_u8x4_remain_want);
      read_value(l, div_s16x8_p3_quotient_want);
      read_value(l, div_s16x8_p3_remain_want);
      read_value(l, div_s64_quotient_want);
      read_value(l, div_s64_remain_want);
      read_value(l, div_u1_p3_quotient_want);
      read_value(l, div_u1_p3_remain_want);
      wait for 1 ns;
      check("div_u8x4.quotient", div_u8x4_quotient, div_u8x4_quotient_want, t);
      check("div_u8x4.remain", div_u8x4_remain, div_u8x4_remain_want, t);
      check("div_s16x8_p3.quotient", div_s16x8_p3_quotient, div_s16x8_p3_quotient_want, t);
      check("div_s16x8_p3.remain", div_s16x8_p3_remain, div_s16x8_p3_remain_want, t);
      check("div_s64.quotient", div_s64_quotient, div_s64_quotient_want, t);
      check("div_s64.remain", div_s64_remain, div_s64_remain_want, t);
      check("div_u1_p3.quotient", div_u1_p3_quotient, div_u1_p3_quotient_want, t);
      check("div_u1_p3.remain", div_u1_p3_remain, div_u1_p3_remain_want, t);
      clock <= '1';
      wait for 1 ns;
      clock <= '0';
    end loop;
    finish(t);
    wait;
  end process;
end bench;
