-- Comparator library module: signed or unsigned magnitude comparison of two buses.
library ieee;
use ieee.std_logic_1164.all;
use ieee.numeric_std.all;

entity lpm_compare is
  generic (lpm_width : NATURAL; lpm_representation : STRING := "UNSIGNED"; lpm_pipeline : NATURAL := 0;
           lpm_type : STRING := "LPM_COMPARE"; lpm_hint : STRING := "UNUSED");
  port (dataa, datab : in STD_LOGIC_VECTOR(lpm_width-1 downto 0); clock, aclr : in STD_LOGIC := '0';
        clken : in STD_LOGIC := '1'; alb, aeb, agb, ageb, aneb, aleb : out STD_LOGIC);
end lpm_compare;

architecture behaviour of lpm_compare is
  type stages is array (NATURAL range <>) of STD_LOGIC_VECTOR(5 downto 0);
  signal stage : stages(0 to lpm_pipeline) := (others => (others => '0'));

  function flag (condition : BOOLEAN) return STD_LOGIC is
  begin
    if condition then return '1'; end if;
    return '0';
  end function;
begin
  process (dataa, datab)
    variable less, equal : BOOLEAN;
  begin
    if lpm_representation = "SIGNED" then
      less := SIGNED(dataa) < SIGNED(datab);
    else
      less := UNSIGNED(dataa) < UNSIGNED(datab);
    end if;
    equal := dataa = datab;
    stage(0) <= flag(less) & flag(equal) & flag(not less and not equal) & flag(not less) & flag(not equal)
                & flag(less or equal);
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

  alb <= stage(lpm_pipeline)(5);
  aeb <= stage(lpm_pipeline)(4);
  agb <= stage(lpm_pipeline)(3);
  ageb <= stage(lpm_pipeline)(2);
  aneb <= stage(lpm_pipeline)(1);
  aleb <= stage(lpm_pipeline)(0);
end behaviour;
