-- Bench of the counter variation cnt10 (4 bits, up, modulus 10, aclr, active-low cnt_en_n, cout).
library ieee;
use ieee.std_logic_1164.all;
use ieee.numeric_std.all;

entity tb_cnt10 is
end tb_cnt10;

architecture bench of tb_cnt10 is
  signal clock, aclr, cnt_en_n, cout : STD_LOGIC := '0';
  signal q : STD_LOGIC_VECTOR(3 downto 0);
begin
  dut : entity work.cnt10 port map (clock => clock, aclr => aclr, cnt_en_n => cnt_en_n, q => q, cout => cout);

  process
    variable expected, errors : NATURAL := 0;
    procedure check(cycle : INTEGER) is
      variable want_cout : STD_LOGIC := '0';
    begin
      if expected = 9 then want_cout := '1'; end if;
      if to_integer(UNSIGNED(q)) /= expected or cout /= want_cout then
        report "FAIL cycle " & INTEGER'image(cycle) & ": q=" & INTEGER'image(to_integer(UNSIGNED(q)))
          & " expected " & INTEGER'image(expected) severity error;
        errors := errors + 1;
      end if;
    end procedure;
  begin
    aclr <= '1';
    wait for 1 ns;
    aclr <= '0';
    for cycle in 0 to 39 loop
      if cycle mod 7 = 3 then cnt_en_n <= '1'; else cnt_en_n <= '0'; end if;
      wait for 1 ns;
      check(cycle);
      clock <= '1';
      wait for 1 ns;
      clock <= '0';
      if cnt_en_n = '0' then expected := (expected + 1) mod 10; end if;
    end loop;
    wait for 1 ns;
    check(40);
    aclr <= '1';
    wait for 1 ns;
    expected := 0;
    check(41);
    if errors = 0 then report "PASS"; end if;
    wait;
  end process;
end bench;
