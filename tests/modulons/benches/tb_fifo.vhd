-- Bench of the FIFO variations fifo64 (five 64-bit words, both clears, usedw, almost full from 4 and almost
-- empty below 2), fifo1 (eight 1-bit words, show-ahead), dcfifo_sync (the dual-clock FIFO, eight 64-bit
-- words, show-ahead, both clocks from the one clock so that each line is exact) and level (a FIFO of eight
-- words whose almost_full comes from a comparator at 6), against vectors/fifo.vec; the outputs are compared
-- after each line's clock edge.
library ieee;
use ieee.std_logic_1164.all;
use std.textio.all;
use work.bench_vectors.all;

entity tb_fifo is
  generic (vectors : STRING);
end tb_fifo;

architecture bench of tb_fifo is
  signal clock : STD_LOGIC := '0';
  signal fifo64_data : STD_LOGIC_VECTOR(63 downto 0) := (others => '0');
  signal fifo64_wrreq : STD_LOGIC := '0';
  signal fifo64_rdreq : STD_LOGIC := '0';
  signal fifo64_aclr : STD_LOGIC := '0';
  signal fifo64_sclr : STD_LOGIC := '0';
  signal fifo1_data : STD_LOGIC_VECTOR(0 downto 0) := (others => '0');
  signal fifo1_wrreq : STD_LOGIC := '0';
  signal fifo1_rdreq : STD_LOGIC := '0';
  signal dcfifo_sync_data : STD_LOGIC_VECTOR(63 downto 0) := (others => '0');
  signal dcfifo_sync_wrreq : STD_LOGIC := '0';
  signal dcfifo_sync_rdreq : STD_LOGIC := '0';
  signal dcfifo_sync_aclr : STD_LOGIC := '0';
  signal level_data : STD_LOGIC_VECTOR(7 downto 0) := (others => '0');
  signal level_wrreq : STD_LOGIC := '0';
  signal level_rdreq : STD_LOGIC := '0';
  signal level_aclr : STD_LOGIC := '0';
  signal fifo64_q : STD_LOGIC_VECTOR(63 downto 0);
  signal fifo64_empty : STD_LOGIC;
  signal fifo64_full : STD_LOGIC;
  signal fifo64_usedw : STD_LOGIC_VECTOR(2 downto 0);
  signal fifo64_almost_full : STD_LOGIC;
  signal fifo64_almost_empty : STD_LOGIC;
  signal fifo1_q : STD_LOGIC_VECTOR(0 downto 0);
  signal fifo1_empty : STD_LOGIC;
  signal fifo1_full : STD_LOGIC;
  signal fifo1_usedw : STD_LOGIC_VECTOR(2 downto 0);
  signal dcfifo_sync_q : STD_LOGIC_VECTOR(63 downto 0);
  signal dcfifo_sync_rdempty : STD_LOGIC;
  signal dcfifo_sync_rdfull : STD_LOGIC;
  signal dcfifo_sync_rdusedw : STD_LOGIC_VECTOR(2 downto 0);
  signal dcfifo_sync_wrempty : STD_LOGIC;
  signal dcfifo_sync_wrfull : STD_LOGIC;
  signal dcfifo_sync_wrusedw : STD_LOGIC_VECTOR(2 downto 0);
  signal level_q : STD_LOGIC_VECTOR(7 downto 0);
  signal level_empty : STD_LOGIC;
  signal level_full : STD_LOGIC;
  signal level_usedw : STD_LOGIC_VECTOR(3 downto 0);
  signal level_almost_full : STD_LOGIC;
begin
  fifo64_dut : entity work.fifo64 port map (clock => clock, data => fifo64_data, wrreq => fifo64_wrreq,
    rdreq => fifo64_rdreq, aclr => fifo64_aclr, sclr => fifo64_sclr, q => fifo64_q, empty => fifo64_empty,
    full => fifo64_full, usedw => fifo64_usedw, almost_full => fifo64_almost_full,
    almost_empty => fifo64_almost_empty);
  fifo1_dut : entity work.fifo1 port map (clock => clock, data => fifo1_data, wrreq => fifo1_wrreq,
    rdreq => fifo1_rdreq, q => fifo1_q, empty => fifo1_empty, full => fifo1_full, usedw => fifo1_usedw);
  dcfifo_sync_dut : entity work.dcfifo_sync port map (wrclk => clock, rdclk => clock,
    data => dcfifo_sync_data, wrreq => dcfifo_sync_wrreq, rdreq => dcfifo_sync_rdreq,
    aclr => dcfifo_sync_aclr, q => dcfifo_sync_q, rdempty => dcfifo_sync_rdempty,
    rdfull => dcfifo_sync_rdfull, rdusedw => dcfifo_sync_rdusedw, wrempty => dcfifo_sync_wrempty,
    wrfull => dcfifo_sync_wrfull, wrusedw => dcfifo_sync_wrusedw);
  level_dut : entity work.level port map (clock => clock, data => level_data, wrreq => level_wrreq,
    rdreq => level_rdreq, aclr => level_aclr, q => level_q, empty => level_empty, full => level_full,
    usedw => level_usedw, almost_full => level_almost_full);

  process
    file f : text;
    variable l : line;
    variable t : tally;
    variable more : BOOLEAN;
    variable fifo64_q_want : STD_LOGIC_VECTOR(63 downto 0);
    variable fifo64_empty_want : STD_LOGIC;
    variable fifo64_full_want : STD_LOGIC;
    variable fifo64_usedw_want : STD_LOGIC_VECTOR(2 downto 0);
    variable fifo64_almost_full_want : STD_LOGIC;
    variable fifo64_almost_empty_want : STD_LOGIC;
    variable fifo1_q_want : STD_LOGIC_VECTOR(0 downto 0);
    variable fifo1_empty_want : STD_LOGIC;
    variable fifo1_full_want : STD_LOGIC;
    variable fifo1_usedw_want : STD_LOGIC_VECTOR(2 downto 0);
    variable dcfifo_sync_q_want : STD_LOGIC_VECTOR(63 downto 0);
    variable dcfifo_sync_rdempty_want : STD_LOGIC;
    variable dcfifo_sync_rdfull_want : STD_LOGIC;
    variable dcfifo_sync_rdusedw_want : STD_LOGIC_VECTOR(2 downto 0);
    variable dcfifo_sync_wrempty_want : STD_LOGIC;
    variable dcfifo_sync_wrfull_want : STD_LOGIC;
    variable dcfifo_sync_wrusedw_want : STD_LOGIC_VECTOR(2 downto 0);
    variable level_q_want : STD_LOGIC_VECTOR(7 downto 0);
    variable level_empty_want : STD_LOGIC;
    variable level_full_want : STD_LOGIC;
    variable level_usedw_want : STD_LOGIC_VECTOR(3 downto 0);
    variable level_almost_full_want : STD_LOGIC;
  begin
    open_vectors(f, vectors, t);
    loop
      next_line(f, l, t, more);
      exit when not more;
      apply(l, fifo64_data);
      apply(l, fifo64_wrreq);
      apply(l, fifo64_rdreq);
      apply(l, fifo64_aclr);
      apply(l, fifo64_sclr);
      apply(l, fifo1_data);
      apply(l, fifo1_wrreq);
      apply(l, fifo1_rdreq);
      apply(l, dcfifo_sync_data);
      apply(l, dcfifo_sync_wrreq);
      apply(l, dcfifo_sync_rdreq);
      apply(l, dcfifo_sync_aclr);
      apply(l, level_data);
      apply(l, level_wrreq);
      apply(l, level_rdreq);
      apply(l, level_aclr);
      read_value(l, fifo64_q_want);
      read_value(l, fifo64_empty_want);
      read_value(l, fifo64_full_want);
      read_value(l, fifo64_usedw_want);
      read_value(l, fifo64_almost_full_want);
      read_value(l, fifo64_almost_empty_want);
      read_value(l, fifo1_q_want);
      read_value(l, fifo1_empty_want);
      read_value(l, fifo1_full_want);
      read_value(l, fifo1_usedw_want);
      read_value(l, dcfifo_sync_q_want);
      read_value(l, dcfifo_sync_rdempty_want);
      read_value(l, dcfifo_sync_rdfull_want);
      read_value(l, dcfifo_sync_rdusedw_want);
      read_value(l, dcfifo_sync_wrempty_want);
      read_value(l, dcfifo_sync_wrfull_want);
      read_value(l, dcfifo_sync_wrusedw_want);
      read_value(l, level_q_want);
      read_value(l, level_empty_want);
      read_value(l, level_full_want);
      read_value(l, level_usedw_want);
      read_value(l, level_almost_full_want);
      wait for 4 ns;
      clock <= '1';
      wait for 4 ns;
      check("fifo64.q", fifo64_q, fifo64_q_want, t);
      check("fifo64.empty", fifo64_empty, fifo64_empty_want, t);
      check("fifo64.full", fifo64_full, fifo64_full_want, t);
      check("fifo64.usedw", fifo64_usedw, fifo64_usedw_want, t);
      check("fifo64.almost_full", fifo64_almost_full, fifo64_almost_full_want, t);
      check("fifo64.almost_empty", fifo64_almost_empty, fifo64_almost_empty_want, t);
      check("fifo1.q", fifo1_q, fifo1_q_want, t);
      check("fifo1.empty", fifo1_empty, fifo1_empty_want, t);
      check("fifo1.full", fifo1_full, fifo1_full_want, t);
      check("fifo1.usedw", fifo1_usedw, fifo1_usedw_want, t);
      check("dcfifo_sync.q", dcfifo_sync_q, dcfifo_sync_q_want, t);
      check("dcfifo_sync.rdempty", dcfifo_sync_rdempty, dcfifo_sync_rdempty_want, t);
      check("dcfifo_sync.rdfull", dcfifo_sync_rdfull, dcfifo_sync_rdfull_want, t);
      check("dcfifo_sync.rdusedw", dcfifo_sync_rdusedw, dcfifo_sync_rdusedw_want, t);
      check("dcfifo_sync.wrempty", dcfifo_sync_wrempty, dcfifo_sync_wrempty_want, t);
      check("dcfifo_sync.wrfull", dcfifo_sync_wrfull, dcfifo_sync_wrfull_want, t);
      check("dcfifo_sync.wrusedw", dcfifo_sync_wrusedw, dcfifo_sync_wrusedw_want, t);
      check("level.q", level_q, level_q_want, t);
      check("level.empty", level_empty, level_empty_want, t);
      check("level.full", level_full, level_full_want, t);
      check("level.usedw", level_usedw, level_usedw_want, t);
      check("level.almost_full", level_almost_full, level_almost_full_want, t);
      wait for 1 ns;
      clock <= '0';
      wait for 1 ns;
    end loop;
    finish(t);
    wait;
  end process;
end bench;
