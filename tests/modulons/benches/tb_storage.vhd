-- Bench of the storage variations dff64 (64 D flip-flops with enable, every asynchronous control, sclr, and
-- sset to 1234567), tff1 (one T flip-flop with enable, aclr, sset to 0 and sload), latch64 (aclr, aset to
-- 2147483647) and latch1, against vectors/storage.vec; the outputs are compared after each line's clock edge.
library ieee;
use ieee.std_logic_1164.all;
use std.textio.all;
use work.bench_vectors.all;

entity tb_storage is
  generic (vectors : STRING);
end tb_storage;

architecture bench of tb_storage is
  signal clock : STD_LOGIC := '0';
  signal dff64_data : STD_LOGIC_VECTOR(63 downto 0) := (others => '0');
  signal dff64_enable : STD_LOGIC := '0';
  signal dff64_aclr : STD_LOGIC := '0';
  signal dff64_aset : STD_LOGIC := '0';
  signal dff64_aload : STD_LOGIC := '0';
  signal dff64_sclr : STD_LOGIC := '0';
  signal dff64_sset : STD_LOGIC := '0';
  signal tff1_data : STD_LOGIC_VECTOR(0 downto 0) := (others => '0');
  signal tff1_enable : STD_LOGIC := '0';
  signal tff1_aclr : STD_LOGIC := '0';
  signal tff1_sset : STD_LOGIC := '0';
  signal tff1_sload : STD_LOGIC := '0';
  signal latch64_data : STD_LOGIC_VECTOR(63 downto 0) := (others => '0');
  signal latch64_gate : STD_LOGIC := '0';
  signal latch64_aclr : STD_LOGIC := '0';
  signal latch64_aset : STD_LOGIC := '0';
  signal latch1_data : STD_LOGIC_VECTOR(0 downto 0) := (others => '0');
  signal latch1_gate : STD_LOGIC := '0';
  signal dff64_q : STD_LOGIC_VECTOR(63 downto 0);
  signal tff1_q : STD_LOGIC_VECTOR(0 downto 0);
  signal latch64_q : STD_LOGIC_VECTOR(63 downto 0);
  signal latch1_q : STD_LOGIC_VECTOR(0 downto 0);
begin
  dff64_dut : entity work.dff64 port map (clock => clock, data => dff64_data, enable => dff64_enable,
    aclr => dff64_aclr, aset => dff64_aset, aload => dff64_aload, sclr => dff64_sclr, sset => dff64_sset,
    q => dff64_q);
  tff1_dut : entity work.tff1 port map (clock => clock, data => tff1_data, enable => tff1_enable,
    aclr => tff1_aclr, sset => tff1_sset, sload => tff1_sload, q => tff1_q);
  latch64_dut : entity work.latch64 port map (data => latch64_data, gate => latch64_gate,
    aclr => latch64_aclr, aset => latch64_aset, q => latch64_q);
  latch1_dut : entity work.latch1 port map (data => latch1_data, gate => latch1_gate, q => latch1_q);

  process
    file f : text;
    variable l : line;
    variable t : tally;
    variable more : BOOLEAN;
    variable dff64_q_want : STD_LOGIC_VECTOR(63 downto 0);
    variable tff1_q_want : STD_LOGIC_VECTOR(0 downto 0);
    variable latch64_q_want : STD_LOGIC_VECTOR(63 downto 0);
    variable latch1_q_want : STD_LOGIC_VECTOR(0 downto 0);
  begin
    open_vectors(f, vectors, t);
    loop
      next_line(f, l, t, more);
      exit when not more;
      apply(l, dff64_data);
      apply(l, dff64_enable);
      apply(l, dff64_aclr);
      apply(l, dff64_aset);
      apply(l, dff64_aload);
      apply(l, dff64_sclr);
      apply(l, dff64_sset);
      apply(l, tff1_data);
      apply(l, tff1_enable);
      apply(l, tff1_aclr);
      apply(l, tff1_sset);
      apply(l, tff1_sload);
      apply(l, latch64_data);
      apply(l, latch64_gate);
      apply(l, latch64_aclr);
      apply(l, latch64_aset);
      apply(l, latch1_data);
      apply(l, latch1_gate);
      read_value(l, dff64_q_want);
      read_value(l, tff1_q_want);
      read_value(l, latch64_q_want);
      read_value(l, latch1_q_want);
      wait for 4 ns;
      clock <= '1';
      wait for 4 ns;
      check("dff64.q", dff64_q, dff64_q_want, t);
      check("tff1.q", tff1_q, tff1_q_want, t);
      check("latch64.q", latch64_q, latch64_q_want, t);
      check("latch1.q", latch1_q, latch1_q_want, t);
      wait for 1 ns;
      clock <= '0';
      wait for 1 ns;
    end loop;
    finish(t);
    wait;
  end process;
end bench;
