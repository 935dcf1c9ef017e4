-- Bench of the memory variations rom_hex (64-bit words from the Intel HEX file memory.hex, address
-- registered), rom_txt (1-bit words from the plain file memory.txt, output registered), ramdp64 (64-bit
-- words, registered read address, write and read clock enables) and ramdp1 (six 1-bit words, registered
-- output, read enable), against vectors/memory.vec. A line pulses each RAM's write clock, then the ROMs'
-- clock, then each RAM's read clock (each RAM's clocks where its columns say so); the outputs are compared
-- after the edges.
library ieee;
use ieee.std_logic_1164.all;
use std.textio.all;
use work.bench_vectors.all;

entity tb_memory is
  generic (vectors : STRING);
end tb_memory;

architecture bench of tb_memory is
  signal clock : STD_LOGIC := '0';
  signal rom_hex_address : STD_LOGIC_VECTOR(3 downto 0) := (others => '0');
  signal rom_txt_address : STD_LOGIC_VECTOR(4 downto 0) := (others => '0');
  signal ramdp64_data : STD_LOGIC_VECTOR(63 downto 0) := (others => '0');
  signal ramdp64_wraddress : STD_LOGIC_VECTOR(3 downto 0) := (others => '0');
  signal ramdp64_wren : STD_LOGIC := '0';
  signal ramdp64_wrclken : STD_LOGIC := '0';
  signal ramdp64_rdclken : STD_LOGIC := '0';
  signal ramdp64_rdaddress : STD_LOGIC_VECTOR(3 downto 0) := (others => '0');
  signal ramdp64_wrclock : STD_LOGIC := '0';
  signal ramdp64_rdclock : STD_LOGIC := '0';
  signal ramdp1_data : STD_LOGIC_VECTOR(0 downto 0) := (others => '0');
  signal ramdp1_wraddress : STD_LOGIC_VECTOR(2 downto 0) := (others => '0');
  signal ramdp1_wren : STD_LOGIC := '0';
  signal ramdp1_rden : STD_LOGIC := '0';
  signal ramdp1_rdaddress : STD_LOGIC_VECTOR(2 downto 0) := (others => '0');
  signal ramdp1_wrclock : STD_LOGIC := '0';
  signal ramdp1_rdclock : STD_LOGIC := '0';
  signal rom_hex_q : STD_LOGIC_VECTOR(63 downto 0);
  signal rom_txt_q : STD_LOGIC_VECTOR(0 downto 0);
  signal ramdp64_q : STD_LOGIC_VECTOR(63 downto 0);
  signal ramdp1_q : STD_LOGIC_VECTOR(0 downto 0);
begin
  rom_hex_dut : entity work.rom_hex port map (inclock => clock, address => rom_hex_address, q => rom_hex_q);
  rom_txt_dut : entity work.rom_txt port map (outclock => clock, address => rom_txt_address, q => rom_txt_q);
  ramdp64_dut : entity work.ramdp64 port map (data => ramdp64_data, wraddress => ramdp64_wraddress,
    wren => ramdp64_wren, wrclken => ramdp64_wrclken, rdclken => ramdp64_rdclken,
    rdaddress => ramdp64_rdaddress, wrclock => ramdp64_wrclock, rdclock => ramdp64_rdclock, q => ramdp64_q);
  ramdp1_dut : entity work.ramdp1 port map (data => ramdp1_data, wraddress => ramdp1_wraddress,
    wren => ramdp1_wren, rden => ramdp1_rden, rdaddress => ramdp1_rdaddress, wrclock => ramdp1_wrclock,
    rdclock => ramdp1_rdclock, q => ramdp1_q);

  process
    file f : text;
    variable l : line;
    variable t : tally;
    variable more : BOOLEAN;
    variable ramdp64_wrclock_pulse : STD_LOGIC;
    variable ramdp64_rdclock_pulse : STD_LOGIC;
    variable ramdp1_wrclock_pulse : STD_LOGIC;
    variable ramdp1_rdclock_pulse : STD_LOGIC;
    variable rom_hex_q_want : STD_LOGIC_VECTOR(63 downto 0);
    variable rom_txt_q_want : STD_LOGIC_VECTOR(0 downto 0);
    variable ramdp64_q_want : STD_LOGIC_VECTOR(63 downto 0);
    variable ramdp1_q_want : STD_LOGIC_VECTOR(0 downto 0);
  begin
    open_vectors(f, vectors, t);
    loop
      next_line(f, l, t, more);
      exit when not more;
      apply(l, rom_hex_address);
      apply(l, rom_txt_address);
      apply(l, ramdp64_data);
      apply(l, ramdp64_wraddress);
      apply(l, ramdp64_wren);
      apply(l, ramdp64_wrclken);
      apply(l, ramdp64_rdclken);
      apply(l, ramdp64_rdaddress);
      read_value(l, ramdp64_wrclock_pulse);
      read_value(l, ramdp64_rdclock_pulse);
      apply(l, ramdp1_data);
      apply(l, ramdp1_wraddress);
      apply(l, ramdp1_wren);
      apply(l, ramdp1_rden);
      apply(l, ramdp1_rdaddress);
      read_value(l, ramdp1_wrclock_pulse);
      read_value(l, ramdp1_rdclock_pulse);
      read_value(l, rom_hex_q_want);
      read_value(l, rom_txt_q_want);
      read_value(l, ramdp64_q_want);
      read_value(l, ramdp1_q_want);
      wait for 2 ns;
      ramdp64_wrclock <= ramdp64_wrclock_pulse;
      ramdp1_wrclock <= ramdp1_wrclock_pulse;
      wait for 2 ns;
      clock <= '1';
      wait for 1 ns;
      ramdp64_rdclock <= ramdp64_rdclock_pulse;
      ramdp1_rdclock <= ramdp1_rdclock_pulse;
      wait for 3 ns;
      check("rom_hex.q", rom_hex_q, rom_hex_q_want, t);
      check("rom_txt.q", rom_txt_q, rom_txt_q_want, t);
      check("ramdp64.q", ramdp64_q, ramdp64_q_want, t);
      check("ramdp1.q", ramdp1_q, ramdp1_q_want, t);
      wait for 1 ns;
      clock <= '0';
      ramdp64_wrclock <= '0';
      ramdp64_rdclock <= '0';
      ramdp1_wrclock <= '0';
      ramdp1_rdclock <= '0';
      wait for 1 ns;
    end loop;
    finish(t);
    wait;
  end process;
end bench;
