-- Flip-flop register library module: D or T flip-flops with asynchronous and synchronous clear, set and load.
library ieee;
use ieee.std_logic_1164.all;
use ieee.numeric_std.all;

entity lpm_ff is
  generic (lpm_width : NATURAL; lpm_avalue : INTEGER := -1; lpm_svalue : INTEGER := -1;
           lpm_fftype : STRING := "DFF"; lpm_type : STRING := "LPM_FF"; lpm_hint : STRING := "UNUSED");
  port (data : in STD_LOGIC_VECTOR(lpm_width-1 downto 0); clock : in STD_LOGIC; enable : in STD_LOGIC := '1';
        aclr, aset, aload, sclr, sset, sload : in STD_LOGIC := '0';
        q : out STD_LOGIC_VECTOR(lpm_width-1 downto 0));
end lpm_ff;

architecture behaviour of lpm_ff is
  -- The value of lpm_avalue or lpm_svalue; negative: all ones.
  function set_value(value : INTEGER) return STD_LOGIC_VECTOR is
  begin
    if value < 0 then return (lpm_width-1 downto 0 => '1'); end if;
    return STD_LOGIC_VECTOR(to_unsigned(value, lpm_width));
  end function;
  constant aset_value : STD_LOGIC_VECTOR(lpm_width-1 downto 0) := set_value(lpm_avalue);
  constant sset_value : STD_LOGIC_VECTOR(lpm_width-1 downto 0) := set_value(lpm_svalue);
  signal value : STD_LOGIC_VECTOR(lpm_width-1 downto 0) := (others => '0');
begin
  -- The asynchronous inputs act when they rise and at every clock edge while they are high, aclr first.
  -- A T flip-flop toggles the bits whose data bit is 1; its sload loads data instead.
  process (clock, aclr, aset, aload)
  begin
    if aclr = '1' then
      value <= (others => '0');
    elsif aset = '1' then
      value <= aset_value;
    elsif aload = '1' then
      value <= data;
    elsif rising_edge(clock) and enable = '1' then
      if sclr = '1' then
        value <= (others => '0');
      elsif sset = '1' then
        value <= sset_value;
      elsif lpm_fftype = "TFF" and sload /= '1' then
        value <= value xor data;
      else
        value <= data;
      end if;
    end if;
  end process;

  q <= value;
end behaviour;
