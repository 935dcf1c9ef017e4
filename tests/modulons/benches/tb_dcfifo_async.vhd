-- Bench of the dual-clock FIFO variation dcfifo_async (16 words of 16 bits), its clocks unrelated (periods 14
-- and 22 ns, their edges never together), the same checks as the Verilog bench's: a scoreboard checks that
-- every word written is read back in order, that no word is read from an empty FIFO or written to a full one,
-- and that each side's flags and count agree with the words held; the requests come in phases that fill and
-- empty it.
library ieee;
use ieee.std_logic_1164.all;
use ieee.numeric_std.all;

entity tb_dcfifo_async is
end tb_dcfifo_async;

architecture bench of tb_dcfifo_async is
  constant words : NATURAL := 16;
  constant enough : NATURAL := 600;
  signal wrclk, rdclk, wrreq, rdreq : STD_LOGIC := '0';
  signal data, q : STD_LOGIC_VECTOR(15 downto 0) := (others => '0');
  signal rdempty, rdfull, wrempty, wrfull : STD_LOGIC;
  signal rdusedw, wrusedw : STD_LOGIC_VECTOR(3 downto 0);
  signal written, read, full_seen, empty_seen, write_failures, read_failures : NATURAL := 0;
  signal done : BOOLEAN := false;

  -- The next value of a 16-bit shift register, and a request with a chance in percent that depends on the
  -- phase: mostly writing, mostly reading, both.
  function next_value(value : UNSIGNED(15 downto 0)) return UNSIGNED is
  begin
    if value(0) = '1' then return shift_right(value, 1) xor x"b400"; end if;
    return shift_right(value, 1);
  end function;

  impure function chance(value : UNSIGNED(15 downto 0); writing : BOOLEAN) return STD_LOGIC is
    variable phase, percent : NATURAL;
  begin
    phase := (now / 3000 ns) mod 3;
    if phase = 2 then
      percent := 60;
    elsif (phase = 0) = writing then
      percent := 80;
    else
      percent := 25;
    end if;
    if to_integer(value) mod 100 < percent then return '1'; end if;
    return '0';
  end function;

  function count(used : STD_LOGIC_VECTOR; full : STD_LOGIC) return NATURAL is
  begin
    if full = '1' then return words; end if;
    return to_integer(UNSIGNED(used));
  end function;

  procedure fail(what : STRING; words_written, words_read : NATURAL; failures : inout NATURAL) is
  begin
    report "FAIL " & what & " (written " & INTEGER'image(words_written) & ", read "
      & INTEGER'image(words_read) & ")" severity error;
    failures := failures + 1;
  end procedure;
begin
  dut : entity work.dcfifo_async port map (data => data, wrreq => wrreq, wrclk => wrclk, rdreq => rdreq,
    rdclk => rdclk, q => q, rdempty => rdempty, rdfull => rdfull, rdusedw => rdusedw, wrempty => wrempty,
    wrfull => wrfull, wrusedw => wrusedw);

  -- wrclk rises at 14k + 7 ns, rdclk at 22k + 14 ns.
  wrclk <= not wrclk after 7 ns when not done;
  process
  begin
    wait for 3 ns;
    while not done loop
      wait for 11 ns;
      rdclk <= not rdclk;
    end loop;
    wait;
  end process;

  writer : process
    variable random : UNSIGNED(15 downto 0) := x"0001";
    variable held, failures, full_count : NATURAL := 0;
    variable count_written : NATURAL := 0;
  begin
    wait until rising_edge(wrclk);
    held := count_written - read;
    if held = words and wrfull /= '1' then
      fail("wrfull low while the FIFO is full", count_written, read, failures);
    end if;
    if wrempty = '1' and held /= 0 then
      fail("wrempty high while the FIFO holds words", count_written, read, failures);
    end if;
    if count(wrusedw, wrfull) < held then
      fail("wrusedw below the words held", count_written, read, failures);
    end if;
    if wrfull = '1' then full_count := full_count + 1; end if;
    if wrreq = '1' and wrfull /= '1' then
      if held >= words then fail("a word written while full", count_written, read, failures); end if;
      count_written := count_written + 1;
    end if;
    written <= count_written;
    full_seen <= full_count;
    write_failures <= failures;
    random := next_value(random);
    wait for 1 ns;
    wrreq <= chance(random, true);
    data <= STD_LOGIC_VECTOR(to_unsigned(count_written mod 2 ** 16, 16));
  end process;

  reader : process
    variable random : UNSIGNED(15 downto 0) := x"0007";
    variable held, failures, empty_count, count_read : NATURAL := 0;
    variable accepted : BOOLEAN;
    variable expected : STD_LOGIC_VECTOR(15 downto 0);
  begin
    wait until rising_edge(rdclk);
    held := written - count_read;
    if held = 0 and rdempty /= '1' then
      fail("rdempty low while the FIFO is empty", written, count_read, failures);
    end if;
    if count(rdusedw, rdfull) > held then
      fail("rdusedw above the words held", written, count_read, failures);
    end if;
    if rdempty = '1' then empty_count := empty_count + 1; end if;
    accepted := rdreq = '1' and rdempty /= '1';
    if accepted then
      if held = 0 then fail("a word read while empty", written, count_read, failures); end if;
      expected := STD_LOGIC_VECTOR(to_unsigned(count_read mod 2 ** 16, 16));
      count_read := count_read + 1;
    end if;
    read <= count_read;
    random := next_value(random);
    wait for 1 ns;
    if accepted and q /= expected then fail("a word out of order", written, count_read, failures); end if;
    rdreq <= chance(random, false);
    if count_read = enough then
      if full_seen = 0 or empty_count = 0 then
        fail("the FIFO was never full or never empty", written, count_read, failures);
      end if;
      if failures + write_failures = 0 then
        report "PASS " & INTEGER'image(count_read) & " words, wrfull seen " & INTEGER'image(full_seen)
          & " times, rdempty " & INTEGER'image(empty_count) & " times";
      end if;
      done <= true;
      wait;
    end if;
  end process;
end bench;
