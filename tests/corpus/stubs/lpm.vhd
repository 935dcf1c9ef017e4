-- Stand-in for the package of the library "lpm" that the VHDL tests' own cases name.
library ieee;
use ieee.std_logic_1164.all;

package lpm_components is
  type STD_LOGIC_2D is array (NATURAL RANGE <>, NATURAL RANGE <>) of STD_LOGIC;
end lpm_components;
