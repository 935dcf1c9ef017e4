-- Binary counter library module: up, down or updown counting with modulus, loads, sets, clears and carry.
library ieee;
use ieee.std_logic_1164.all;
use ieee.numeric_std.all;

entity lpm_counter is
  generic (lpm_width : NATURAL; lpm_direction : STRING := "UNUSED"; lpm_modulus : NATURAL := 0;
           lpm_type : STRING := "LPM_COUNTER"; lpm_hint : STRING := "UNUSED");
  port (data : in STD_LOGIC_VECTOR(lpm_width-1 downto 0) := (others => '0');
        clock : in STD_LOGIC; clk_en, cnt_en, updown, cin : in STD_LOGIC := '1';
        aclr, aset, aload, sclr, sset, sload : in STD_LOGIC := '0';
        q : out STD_LOGIC_VECTOR(lpm_width-1 downto 0); cout : out STD_LOGIC);
end lpm_counter;

architecture behaviour of lpm_counter is
  function last_value return UNSIGNED is
  begin
    if lpm_modulus = 0 then
      return to_unsigned(0, lpm_width) - 1;
    end if;
    return to_unsigned(lpm_modulus - 1, lpm_width);
  end function;
  constant last : UNSIGNED(lpm_width-1 downto 0) := last_value;
  constant zero : UNSIGNED(lpm_width-1 downto 0) := (others => '0');
  signal count : UNSIGNED(lpm_width-1 downto 0) := (others => '0');
  signal up : BOOLEAN;
begin
  up <= true when lpm_direction = "UP" else false when lpm_direction = "DOWN" else updown = '1';

  process (clock, aclr, aset, aload)
  begin
    if aclr = '1' then
      count <= zero;
    elsif aset = '1' then
      count <= not zero;
    elsif aload = '1' then
      count <= UNSIGNED(data);
    elsif rising_edge(clock) and clk_en = '1' then
      if sclr = '1' then
        count <= zero;
      elsif sset = '1' then
        count <= not zero;
      elsif sload = '1' then
        count <= UNSIGNED(data);
      elsif cnt_en = '1' and cin = '1' then
        if up then
          if count = last then count <= zero; else count <= count + 1; end if;
        else
          if count = zero then count <= last; else count <= count - 1; end if;
        end if;
      end if;
    end if;
  end process;

  q <= STD_LOGIC_VECTOR(count);
  cout <= '1' when cin = '1' and ((up and count = last) or (not up and count = zero)) else '0';
end behaviour;
