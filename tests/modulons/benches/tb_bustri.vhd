-- Bench of the tri-state bus driver variations bustri1 and bustri64; the bench drives the bus itself while
-- drive is high, against vectors/bustri.vec.
library ieee;
use ieee.std_logic_1164.all;
use std.textio.all;
use work.bench_vectors.all;

entity tb_bustri is
  generic (vectors : STRING);
end tb_bustri;

architecture bench of tb_bustri is
  signal bustri1_data : STD_LOGIC_VECTOR(0 downto 0) := (others => '0');
  signal bustri1_enabledt : STD_LOGIC := '0';
  signal bustri1_enabletr : STD_LOGIC := '0';
  signal bustri1_drive : STD_LOGIC := '0';
  signal bustri1_bus : STD_LOGIC_VECTOR(0 downto 0) := (others => '0');
  signal bustri64_data : STD_LOGIC_VECTOR(63 downto 0) := (others => '0');
  signal bustri64_enabledt : STD_LOGIC := '0';
  signal bustri64_enabletr : STD_LOGIC := '0';
  signal bustri64_drive : STD_LOGIC := '0';
  signal bustri64_bus : STD_LOGIC_VECTOR(63 downto 0) := (others => '0');
  signal bustri1_tridata : STD_LOGIC_VECTOR(0 downto 0);
  signal bustri1_result : STD_LOGIC_VECTOR(0 downto 0);
  signal bustri64_tridata : STD_LOGIC_VECTOR(63 downto 0);
  signal bustri64_result : STD_LOGIC_VECTOR(63 downto 0);
begin
  bustri1_dut : entity work.bustri1 port map (data => bustri1_data, enabledt => bustri1_enabledt,
    enabletr => bustri1_enabletr, tridata => bustri1_tridata, result => bustri1_result);
  bustri1_tridata <= bustri1_bus when bustri1_drive = '1' else (others => 'Z');
  bustri64_dut : entity work.bustri64 port map (data => bustri64_data, enabledt => bustri64_enabledt,
    enabletr => bustri64_enabletr, tridata => bustri64_tridata, result => bustri64_result);
  bustri64_tridata <= bustri64_bus when bustri64_drive = '1' else (others => 'Z');

  process
    file f : text;
    variable l : line;
    variable t : tally;
    variable more : BOOLEAN;
    variable bustri1_tridata_want : STD_LOGIC_VECTOR(0 downto 0);
    variable bustri1_result_want : STD_LOGIC_VECTOR(0 downto 0);
    variable bustri64_tridata_want : STD_LOGIC_VECTOR(63 downto 0);
    variable bustri64_result_want : STD_LOGIC_VECTOR(63 downto 0);
  begin
    open_vectors(f, vectors, t);
    loop
      next_line(f, l, t, more);
      exit when not more;
      apply(l, bustri1_data);
      apply(l, bustri1_enabledt);
      apply(l, bustri1_enabletr);
      apply(l, bustri1_drive);
      apply(l, bustri1_bus);
      apply(l, bustri64_data);
      apply(l, bustri64_enabledt);
      apply(l, bustri64_enabletr);
      apply(l, bustri64_drive);
      apply(l, bustri64_bus);
      read_value(l, bustri1_tridata_want);
      read_value(l, bustri1_result_want);
      read_value(l, bustri64_tridata_want);
      read_value(l, bustri64_result_want);
      wait for 1 ns;
      check("bustri1.tridata", bustri1_tridata, bustri1_tridata_want, t);
      check("bustri1.result", bustri1_result, bustri1_result_want, t);
      check("bustri64.tridata", bustri64_tridata, bustri64_tridata_want, t);
      check("bustri64.result", bustri64_result, bustri64_result_want, t);
    end loop;
    finish(t);
    wait;
  end process;
end bench;
