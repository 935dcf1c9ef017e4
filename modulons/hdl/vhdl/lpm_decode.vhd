-- Decoder library module: raises output eq(k) while data equals k and enable is high.
library ieee;
use ieee.std_logic_1164.all;
use ieee.numeric_std.all;

entity lpm_decode is
  generic (lpm_width : NATURAL; lpm_decodes : NATURAL; lpm_pipeline : NATURAL := 0;
           lpm_type : STRING := "LPM_DECODE"; lpm_hint : STRING := "UNUSED");
  port (data : in STD_LOGIC_VECTOR(lpm_width-1 downto 0); enable, clken : in STD_LOGIC := '1';
        clock, aclr : in STD_LOGIC := '0'; eq : out STD_LOGIC_VECTOR(lpm_decodes-1 downto 0));
end lpm_decode;

architecture behaviour of lpm_decode is
  type stages is array (NATURAL range <>) of STD_LOGIC_VECTOR(lpm_decodes-1 downto 0);
  signal stage : stages(0 to lpm_pipeline) := (others => (others => '0'));
  signal now : STD_LOGIC_VECTOR(lpm_decodes-1 downto 0);
begin
  process (data, enable)
    variable value : NATURAL;
  begin
    now <= (others => '0');
    value := to_integer(UNSIGNED(data));
    if enable = '1' and value < lpm_decodes then
      now(value) <= '1';
    end if;
  end process;
  stage(0) <= now;

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

  eq <= stage(lpm_pipeline);
end behaviour;
