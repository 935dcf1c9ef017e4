-- Combinational shifter library module: shifts data by distance places, left while direction is low (an
-- unconnected direction is low) and right while it is high. LOGICAL fills with zeros, ARITHMETIC fills right
-- shifts with the sign bit, ROTATE turns the bits around (by distance modulo lpm_width).
-- overflow: a left shift lost significant bits (shifting the result back does not give data, read unsigned for
-- LOGICAL and signed for ARITHMETIC). underflow: a right shift lost every significant bit (the result is all
-- fill bits while data was not). Both stay low for ROTATE and for shifts the other way.
library ieee;
use ieee.std_logic_1164.all;
use ieee.numeric_std.all;

entity lpm_clshift is
  generic (lpm_width : NATURAL; lpm_widthdist : NATURAL; lpm_shifttype : STRING := "LOGICAL";
           lpm_type : STRING := "LPM_CLSHIFT"; lpm_hint : STRING := "UNUSED");
  port (data : in STD_LOGIC_VECTOR(lpm_width-1 downto 0); distance : in STD_LOGIC_VECTOR(lpm_widthdist-1 downto 0);
        direction : in STD_LOGIC := '0'; result : out STD_LOGIC_VECTOR(lpm_width-1 downto 0);
        overflow, underflow : out STD_LOGIC);
end lpm_clshift;

architecture behaviour of lpm_clshift is
begin
  process (data, distance, direction)
    variable places : NATURAL;
    variable value, shifted, back, fill : UNSIGNED(lpm_width-1 downto 0);
  begin
    places := to_integer(UNSIGNED(distance));
    value := UNSIGNED(data);
    fill := (others => '0');
    if lpm_shifttype = "ARITHMETIC" then
      fill := (others => data(lpm_width-1));
    end if;
    overflow <= '0';
    underflow <= '0';
    if lpm_shifttype = "ROTATE" then
      if direction = '1' then
        shifted := rotate_right(value, places mod lpm_width);
      else
        shifted := rotate_left(value, places mod lpm_width);
      end if;
    elsif direction = '1' then
      if lpm_shifttype = "ARITHMETIC" then
        shifted := UNSIGNED(shift_right(SIGNED(value), places));
      else
        shifted := shift_right(value, places);
      end if;
      if shifted = fill and value /= fill then
        underflow <= '1';
      end if;
    else
      shifted := shift_left(value, places);
      if lpm_shifttype = "ARITHMETIC" then
        back := UNSIGNED(shift_right(SIGNED(shifted), places));
      else
        back := shift_right(shifted, places);
      end if;
      if back /= value then
        overflow <= '1';
      end if;
    end if;
    result <= STD_LOGIC_VECTOR(shifted);
  end process;
end behaviour;
