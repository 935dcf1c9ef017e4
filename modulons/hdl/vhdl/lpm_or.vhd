-- OR gate library module: result(j) is the OR of bit j of the lpm_size words of the flattened data bus
-- (word k at bits k*lpm_width).
library ieee;
use ieee.std_logic_1164.all;

entity lpm_or is
  generic (lpm_width : NATURAL; lpm_size : NATURAL; lpm_type : STRING := "LPM_OR"; lpm_hint : STRING := "UNUSED");
  port (data : in STD_LOGIC_VECTOR(lpm_size*lpm_width-1 downto 0);
        result : out STD_LOGIC_VECTOR(lpm_width-1 downto 0));
end lpm_or;

architecture behaviour of lpm_or is
begin
  process (data)
    variable gate : STD_LOGIC_VECTOR(lpm_width-1 downto 0);
  begin
    gate := (others => '0');
    for k in 0 to lpm_size-1 loop
      gate := gate or data(k*lpm_width+lpm_width-1 downto k*lpm_width);
    end loop;
    result <= gate;
  end process;
end behaviour;
