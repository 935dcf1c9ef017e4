-- Stand-in with the ports of the gate the corpus instantiates.
library ieee;
use ieee.std_logic_1164.all;

entity pvx_gate is
  port (a, en, clr : in std_logic;
        mask, init, data : in std_logic_vector(7 downto 0);
        set, sel : in std_logic_vector(3 downto 0);
        y : out std_logic_vector(7 downto 0));
end pvx_gate;

architecture stub of pvx_gate is
begin
  y <= init when clr = '1' else (data and mask) when (en and a) = '1' else set & sel;
end stub;
