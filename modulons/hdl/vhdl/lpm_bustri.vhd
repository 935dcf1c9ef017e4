-- Tri-state bus driver library module: data drives tridata while enabledt is high, and result follows tridata
-- while enabletr is high; otherwise each is released (high impedance). An unconnected enable is low.
library ieee;
use ieee.std_logic_1164.all;

entity lpm_bustri is
  generic (lpm_width : NATURAL; lpm_type : STRING := "LPM_BUSTRI"; lpm_hint : STRING := "UNUSED");
  port (tridata : inout STD_LOGIC_VECTOR(lpm_width-1 downto 0);
        data : in STD_LOGIC_VECTOR(lpm_width-1 downto 0) := (others => '0');
        enabletr, enabledt : in STD_LOGIC := '0'; result : out STD_LOGIC_VECTOR(lpm_width-1 downto 0));
end lpm_bustri;

architecture behaviour of lpm_bustri is
begin
  tridata <= data when enabledt = '1' else (others => 'Z');
  result <= tridata when enabletr = '1' else (others => 'Z');
end behaviour;
