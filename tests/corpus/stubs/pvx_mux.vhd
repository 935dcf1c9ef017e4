-- Stand-in with the ports of the multiplexer the corpus instantiates: two rows of four bits.
library ieee;
use ieee.std_logic_1164.all;

package pvx_types is
  type STD_LOGIC_2D is array (NATURAL RANGE <>, NATURAL RANGE <>) of STD_LOGIC;
end pvx_types;

library ieee;
use ieee.std_logic_1164.all;
use work.pvx_types.all;

entity pvx_mux is
  port (data : in STD_LOGIC_2D(1 downto 0, 3 downto 0); sel : in std_logic;
        result : out std_logic_vector(3 downto 0));
end pvx_mux;

architecture stub of pvx_mux is
begin
  result <= data(1, 3) & data(1, 2) & data(1, 1) & data(1, 0) when sel = '1' else
            data(0, 3) & data(0, 2) & data(0, 1) & data(0, 0);
end stub;
