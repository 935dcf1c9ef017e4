-- Bench of the composite variation ticker (a 4-bit counter feeding a comparator against 5, with aclr).
library ieee;
use ieee.std_logic_1164.all;
use ieee.numeric_std.all;

entity tb_ticker is
end tb_ticker;

architecture bench of tb_ticker is
  signal clock, aclr, match, above : STD_LOGIC := '0';
  signal q : STD_LOGIC_VECTOR(3 downto 0);
begin
  dut : entity work.ticker port map (clock => clock, aclr => aclr, q => q, match => match, above => above);

  process
    variable expected, errors : NATURAL := 0;
  begin
    aclr <= '1';
    wait for 1 ns;
    aclr <= '0';
    for cycle in 0 to 35 loop
      wait for 1 ns;
      if to_integer(UNSIGNED(q)) /= expected or (match = '1') /= (expected = 5) or (above = '1') /= (expected > 5)
      then
        report "FAIL cycle " & INTEGER'image(cycle) & ": q=" & INTEGER'image(to_integer(UNSIGNED(q)))
          severity error;
        errors := errors + 1;
      end if;
      clock <= '1';
      wait for 1 ns;
      clock <= '0';
      expected := (expected + 1) mod 16;
    end loop;
    if errors = 0 then report "PASS"; end if;
    wait;
  end process;
end bench;
