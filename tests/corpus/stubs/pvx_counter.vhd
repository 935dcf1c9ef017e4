-- Stand-in with the ports of the counter the corpus instantiates.
library ieee;
use ieee.std_logic_1164.all;
use ieee.numeric_std.all;

entity pvx_counter is
  generic (width : natural := 8);
  port (clock : in std_logic; q : out std_logic_vector(width - 1 downto 0));
end pvx_counter;

architecture stub of pvx_counter is
  signal count : unsigned(width - 1 downto 0) := (others => '0');
begin
  count <= count + 1 when rising_edge(clock);
  q <= std_logic_vector(count);
end stub;
