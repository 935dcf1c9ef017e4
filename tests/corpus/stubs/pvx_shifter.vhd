-- Stand-in with the ports of the shift register the corpus instantiates.
library ieee;
use ieee.std_logic_1164.all;

entity pvx_shifter is
  generic (depth : natural := 4; mode : string := "none");
  port (clock : in std_logic; data : in std_logic_vector(3 downto 0); q : out std_logic_vector(3 downto 0));
end pvx_shifter;

architecture stub of pvx_shifter is
begin
  q <= data when rising_edge(clock);
end stub;
