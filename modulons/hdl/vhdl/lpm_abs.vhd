-- Absolute value library module: result is the magnitude of the two's-complement data; overflow is high for the
-- most negative value, whose magnitude does not fit (result is then data itself).
library ieee;
use ieee.std_logic_1164.all;
use ieee.numeric_std.all;

entity lpm_abs is
  generic (lpm_width : NATURAL; lpm_type : STRING := "LPM_ABS"; lpm_hint : STRING := "UNUSED");
  port (data : in STD_LOGIC_VECTOR(lpm_width-1 downto 0); result : out STD_LOGIC_VECTOR(lpm_width-1 downto 0);
        overflow : out STD_LOGIC);
end lpm_abs;

architecture behaviour of lpm_abs is
  signal negated : STD_LOGIC_VECTOR(lpm_width-1 downto 0);
begin
  negated <= STD_LOGIC_VECTOR(UNSIGNED(not data) + 1);
  result <= negated when data(lpm_width-1) = '1' else data;
  -- Only zero and the most negative value are their own negation; zero is not negative.
  overflow <= '1' when data(lpm_width-1) = '1' and negated = data else '0';
end behaviour;
