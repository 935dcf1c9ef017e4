-- Latch library module: q follows data while gate is high and holds it while gate is low; asynchronous clear
-- and set.
library ieee;
use ieee.std_logic_1164.all;
use ieee.numeric_std.all;

entity lpm_latch is
  generic (lpm_width : NATURAL; lpm_avalue : INTEGER := -1; lpm_type : STRING := "LPM_LATCH";
           lpm_hint : STRING := "UNUSED");
  port (data : in STD_LOGIC_VECTOR(lpm_width-1 downto 0); gate : in STD_LOGIC;
        aclr, aset : in STD_LOGIC := '0'; q : out STD_LOGIC_VECTOR(lpm_width-1 downto 0));
end lpm_latch;

architecture behaviour of lpm_latch is
  function set_value return STD_LOGIC_VECTOR is
  begin
    if lpm_avalue < 0 then return (lpm_width-1 downto 0 => '1'); end if;
    return STD_LOGIC_VECTOR(to_unsigned(lpm_avalue, lpm_width));
  end function;
  constant aset_value : STD_LOGIC_VECTOR(lpm_width-1 downto 0) := set_value;
  signal value : STD_LOGIC_VECTOR(lpm_width-1 downto 0) := (others => '0');
begin
  process (data, gate, aclr, aset)
  begin
    if aclr = '1' then
      value <= (others => '0');
    elsif aset = '1' then
      value <= aset_value;
    elsif gate = '1' then
      value <= data;
    end if;
  end process;

  q <= value;
end behaviour;
