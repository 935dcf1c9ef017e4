-- Bench of the RAM variation ram32 (32 words of 8 bits, registered data, address and write enable).
library ieee;
use ieee.std_logic_1164.all;
use ieee.numeric_std.all;

entity tb_ram32 is
end tb_ram32;

architecture bench of tb_ram32 is
  signal data, q : STD_LOGIC_VECTOR(7 downto 0) := (others => '0');
  signal address : STD_LOGIC_VECTOR(4 downto 0) := (others => '0');
  signal we, inclock : STD_LOGIC := '0';
begin
  dut : entity work.ram32 port map (data => data, address => address, we => we, inclock => inclock, q => q);

  process
    variable errors : NATURAL := 0;
    variable k : INTEGER;
    procedure edge is
    begin
      wait for 1 ns;
      inclock <= '1';
      wait for 1 ns;
      inclock <= '0';
    end procedure;
  begin
    for k in 0 to 31 loop
      address <= STD_LOGIC_VECTOR(to_unsigned(k, 5));
      data <= STD_LOGIC_VECTOR(to_unsigned((k * 37 + 5) mod 256, 8));
      we <= '1';
      edge;
      if to_integer(UNSIGNED(q)) /= (k * 37 + 5) mod 256 then
        report "FAIL write " & INTEGER'image(k) severity error;
        errors := errors + 1;
      end if;
    end loop;
    we <= '0';
    data <= (others => '1');
    k := 31;
    while k >= 0 loop
      address <= STD_LOGIC_VECTOR(to_unsigned(k, 5));
      edge;
      if to_integer(UNSIGNED(q)) /= (k * 37 + 5) mod 256 then
        report "FAIL read " & INTEGER'image(k) severity error;
        errors := errors + 1;
      end if;
      k := k - 3;
    end loop;
    if errors = 0 then report "PASS"; end if;
    wait;
  end process;
end bench;
