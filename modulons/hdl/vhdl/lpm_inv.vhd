-- Inverter library module: result is the bitwise complement of data.
library ieee;
use ieee.std_logic_1164.all;

entity lpm_inv is
  generic (lpm_width : NATURAL; lpm_type : STRING := "LPM_INV"; lpm_hint : STRING := "UNUSED");
  port (data : in STD_LOGIC_VECTOR(lpm_width-1 downto 0); result : out STD_LOGIC_VECTOR(lpm_width-1 downto 0));
end lpm_inv;

architecture behaviour of lpm_inv is
begin
  result <= not data;
end behaviour;
