-- Constant library module: drives lpm_cvalue on its result bus.
library ieee;
use ieee.std_logic_1164.all;
use ieee.numeric_std.all;

entity lpm_constant is
  generic (lpm_width : NATURAL; lpm_cvalue : NATURAL; lpm_strength : STRING := "UNUSED";
           lpm_type : STRING := "LPM_CONSTANT"; lpm_hint : STRING := "UNUSED");
  port (result : out STD_LOGIC_VECTOR(lpm_width-1 downto 0));
end lpm_constant;

architecture behaviour of lpm_constant is
begin
  result <= STD_LOGIC_VECTOR(to_unsigned(lpm_cvalue, lpm_width));
end behaviour;
