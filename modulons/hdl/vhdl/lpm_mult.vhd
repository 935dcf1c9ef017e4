-- Multiplier library module: result is dataa times datab, both read unsigned or both signed. A result narrower
-- than the full product (lpm_widtha + lpm_widthb bits) keeps its most significant bits; a wider one is extended.
-- With lpm_pipeline > 0 the result passes that many registers clocked by clock while clken is high and cleared
-- by aclr; registers hold unknown values until filled or cleared.
library ieee;
use ieee.std_logic_1164.all;
use ieee.numeric_std.all;

entity lpm_mult is
  generic (lpm_widtha : NATURAL; lpm_widthb : NATURAL; lpm_widthp : NATURAL;
           lpm_representation : STRING := "UNSIGNED"; lpm_pipeline : NATURAL := 0; lpm_type : STRING := "LPM_MULT";
           lpm_hint : STRING := "UNUSED");
  port (dataa : in STD_LOGIC_VECTOR(lpm_widtha-1 downto 0); datab : in STD_LOGIC_VECTOR(lpm_widthb-1 downto 0);
        clock, aclr : in STD_LOGIC := '0'; clken : in STD_LOGIC := '1';
        result : out STD_LOGIC_VECTOR(lpm_widthp-1 downto 0));
end lpm_mult;

architecture behaviour of lpm_mult is
  function larger (a, b : NATURAL) return NATURAL is
  begin
    if a > b then return a; end if;
    return b;
  end function;
  -- The exact product fits the full width; extended to the larger of the full and the result width, its top
  -- bits are the result.
  constant full : NATURAL := lpm_widtha + lpm_widthb;
  constant wide : NATURAL := larger(full, lpm_widthp);
  subtype word is STD_LOGIC_VECTOR(lpm_widthp-1 downto 0);
  type stages is array (NATURAL range <>) of word;
  signal stage : stages(0 to lpm_pipeline);
begin
  process (dataa, datab)
    variable product : STD_LOGIC_VECTOR(wide-1 downto 0);
  begin
    if lpm_representation = "SIGNED" then
      product := STD_LOGIC_VECTOR(resize(SIGNED(dataa) * SIGNED(datab), wide));
    else
      product := STD_LOGIC_VECTOR(resize(UNSIGNED(dataa) * UNSIGNED(datab), wide));
    end if;
    stage(0) <= product(wide-1 downto wide-lpm_widthp);
  end process;

  pipeline : for k in 1 to lpm_pipeline generate
    process (clock, aclr)
    begin
      if aclr = '1' then
        stage(k) <= (others => '0');
      elsif rising_edge(clock) and clken = '1' then
        stage(k) <= stage(k-1);
      end if;
    end process;
  end generate;

  result <= stage(lpm_pipeline);
end behaviour;
