-- Bench of the adder/subtractor variation add8 (8 bits, signed, add_sub input, cout and overflow).
library ieee;
use ieee.std_logic_1164.all;
use ieee.numeric_std.all;

entity tb_add8 is
end tb_add8;

architecture bench of tb_add8 is
  signal dataa, datab, result : STD_LOGIC_VECTOR(7 downto 0);
  signal add_sub, cout, overflow : STD_LOGIC;
begin
  dut : entity work.add8
    port map (dataa => dataa, datab => datab, add_sub => add_sub, result => result, cout => cout,
              overflow => overflow);

  process
    variable a, b, sum, errors, steps : INTEGER := 0;
    variable want : STD_LOGIC_VECTOR(7 downto 0);
    variable want_cout, want_overflow : BOOLEAN;
  begin
    for op in 0 to 1 loop
      a := 0;
      while a < 256 loop
        b := 0;
        while b < 256 loop
          dataa <= STD_LOGIC_VECTOR(to_unsigned(a, 8));
          datab <= STD_LOGIC_VECTOR(to_unsigned(b, 8));
          if op = 1 then
            add_sub <= '1';
            sum := a + b;
            want_cout := sum > 255;
          else
            add_sub <= '0';
            sum := a - b;
            want_cout := a >= b;
          end if;
          want := STD_LOGIC_VECTOR(to_unsigned(sum mod 256, 8));
          if op = 1 then
            want_overflow := (a >= 128) = (b >= 128) and (want(7) = '1') /= (a >= 128);
          else
            want_overflow := (a >= 128) /= (b >= 128) and (want(7) = '1') /= (a >= 128);
          end if;
          wait for 1 ns;
          steps := steps + 1;
          if result /= want or (cout = '1') /= want_cout or (overflow = '1') /= want_overflow then
            report "FAIL " & INTEGER'image(a) & " op " & INTEGER'image(op) & " " & INTEGER'image(b) severity error;
            errors := errors + 1;
          end if;
          b := b + 13;
        end loop;
        a := a + 17;
      end loop;
    end loop;
    if errors = 0 and steps > 0 then report "PASS"; end if;
    wait;
  end process;
end bench;
