-- Shift register library module: shifts left or right, loads in parallel, sets and clears.
library ieee;
use ieee.std_logic_1164.all;

entity lpm_shiftreg is
  generic (lpm_width : NATURAL; lpm_direction : STRING := "LEFT"; lpm_type : STRING := "LPM_SHIFTREG";
           lpm_hint : STRING := "UNUSED");
  port (data : in STD_LOGIC_VECTOR(lpm_width-1 downto 0) := (others => '0'); clock : in STD_LOGIC;
        enable, shiftin : in STD_LOGIC := '1'; load, aclr, aset, sclr, sset : in STD_LOGIC := '0';
        q : out STD_LOGIC_VECTOR(lpm_width-1 downto 0); shiftout : out STD_LOGIC);
end lpm_shiftreg;

architecture behaviour of lpm_shiftreg is
  signal value : STD_LOGIC_VECTOR(lpm_width-1 downto 0) := (others => '0');
  signal left_shifted, right_shifted : STD_LOGIC_VECTOR(lpm_width downto 0);
begin
  left_shifted <= value & shiftin;
  right_shifted <= shiftin & value;

  process (clock, aclr, aset)
  begin
    if aclr = '1' then
      value <= (others => '0');
    elsif aset = '1' then
      value <= (others => '1');
    elsif rising_edge(clock) and enable = '1' then
      if sclr = '1' then
        value <= (others => '0');
      elsif sset = '1' then
        value <= (others => '1');
      elsif load = '1' then
        value <= data;
      elsif lpm_direction = "RIGHT" then
        value <= right_shifted(lpm_width downto 1);
      else
        value <= left_shifted(lpm_width-1 downto 0);
      end if;
    end if;
  end process;

  q <= value;
  shiftout <= value(0) when lpm_direction = "RIGHT" else value(lpm_width-1);
end behaviour;
