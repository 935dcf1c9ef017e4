-- Bench of the library modules' defaults: every optional input is left unconnected and must take its default
-- (enables and carry 1, clears 0, shiftin 1, carry in 0 when adding and 1 when subtracting), against
-- vectors/defaults.vec; the outputs are compared after each line's clock edge.
library ieee;
use ieee.std_logic_1164.all;
use std.textio.all;
library lpm;
use work.bench_vectors.all;

entity tb_defaults is
  generic (vectors : STRING);
end tb_defaults;

architecture bench of tb_defaults is
  signal clock, cout, aeb : STD_LOGIC := '0';
  signal a, b, sum, difference : STD_LOGIC_VECTOR(7 downto 0) := (others => '0');
  signal count, shifted, eq : STD_LOGIC_VECTOR(3 downto 0);
begin
  counter : entity lpm.lpm_counter generic map (lpm_width => 4, lpm_direction => "UP")
    port map (clock => clock, q => count, cout => cout);
  adder : entity lpm.lpm_add_sub generic map (lpm_width => 8, lpm_direction => "ADD")
    port map (dataa => a, datab => b, result => sum);
  subtractor : entity lpm.lpm_add_sub generic map (lpm_width => 8, lpm_direction => "SUB")
    port map (dataa => a, datab => b, result => difference);
  shifter : entity lpm.lpm_shiftreg generic map (lpm_width => 4) port map (clock => clock, q => shifted);
  decoder : entity lpm.lpm_decode generic map (lpm_width => 2, lpm_decodes => 4)
    port map (data => a(1 downto 0), eq => eq);
  comparator : entity lpm.lpm_compare generic map (lpm_width => 8, lpm_pipeline => 1)
    port map (dataa => a, datab => b, clock => clock, aeb => aeb);

  process
    file f : text;
    variable l : line;
    variable t : tally;
    variable more : BOOLEAN;
    variable count_want, shifted_want, eq_want : STD_LOGIC_VECTOR(3 downto 0);
    variable sum_want, difference_want : STD_LOGIC_VECTOR(7 downto 0);
    variable cout_want, aeb_want : STD_LOGIC;
  begin
    open_vectors(f, vectors, t);
    loop
      next_line(f, l, t, more);
      exit when not more;
      apply(l, a);
      apply(l, b);
      read_value(l, count_want);
      read_value(l, cout_want);
      read_value(l, sum_want);
      read_value(l, difference_want);
      read_value(l, shifted_want);
      read_value(l, eq_want);
      read_value(l, aeb_want);
      wait for 4 ns;
      clock <= '1';
      wait for 4 ns;
      check("count", count, count_want, t);
      check("cout", cout, cout_want, t);
      check("sum", sum, sum_want, t);
      check("difference", difference, difference_want, t);
      check("shifted", shifted, shifted_want, t);
      check("eq", eq, eq_want, t);
      check("aeb", aeb, aeb_want, t);
      wait for 1 ns;
      clock <= '0';
      wait for 1 ns;
    end loop;
    finish(t);
    wait;
  end process;
end bench;
