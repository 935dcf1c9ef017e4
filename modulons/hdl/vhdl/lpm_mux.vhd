-- Multiplexer library module: selects word sel of the lpm_size words of the flattened data bus (word k at bits
-- k*lpm_width); a sel beyond the last word gives zeros.
library ieee;
use ieee.std_logic_1164.all;
use ieee.numeric_std.all;

entity lpm_mux is
  generic (lpm_width : NATURAL; lpm_size : NATURAL; lpm_widths : NATURAL; lpm_pipeline : NATURAL := 0;
           lpm_type : STRING := "LPM_MUX"; lpm_hint : STRING := "UNUSED");
  port (data : in STD_LOGIC_VECTOR(lpm_size*lpm_width-1 downto 0);
        sel : in STD_LOGIC_VECTOR(lpm_widths-1 downto 0); clock, aclr : in STD_LOGIC := '0';
        clken : in STD_LOGIC := '1'; result : out STD_LOGIC_VECTOR(lpm_width-1 downto 0));
end lpm_mux;

architecture behaviour of lpm_mux is
  type stages is array (NATURAL range <>) of STD_LOGIC_VECTOR(lpm_width-1 downto 0);
  signal stage : stages(0 to lpm_pipeline) := (others => (others => '0'));
  signal now : STD_LOGIC_VECTOR(lpm_width-1 downto 0);
begin
  process (data, sel)
    variable row : NATURAL;
  begin
    now <= (others => '0');
    row := to_integer(UNSIGNED(sel));
    if row < lpm_size then
      now <= data(row*lpm_width+lpm_width-1 downto row*lpm_width);
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

  result <= stage(lpm_pipeline);
end behaviour;
