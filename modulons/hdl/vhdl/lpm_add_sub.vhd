-- Adder/subtractor library module: signed or unsigned, with carry in, carry out and overflow.
library ieee;
use ieee.std_logic_1164.all;
use ieee.numeric_std.all;

entity lpm_add_sub is
  generic (lpm_width : NATURAL; lpm_direction : STRING := "UNUSED"; lpm_representation : STRING := "SIGNED";
           lpm_pipeline : NATURAL := 0; lpm_type : STRING := "LPM_ADD_SUB"; lpm_hint : STRING := "UNUSED");
  port (dataa, datab : in STD_LOGIC_VECTOR(lpm_width-1 downto 0); cin : in STD_LOGIC := 'Z';
        add_sub, clken : in STD_LOGIC := '1'; clock, aclr : in STD_LOGIC := '0';
        result : out STD_LOGIC_VECTOR(lpm_width-1 downto 0); cout, overflow : out STD_LOGIC);
end lpm_add_sub;

architecture behaviour of lpm_add_sub is
  subtype word is STD_LOGIC_VECTOR(lpm_width+1 downto 0);
  type stages is array (NATURAL range <>) of word;
  signal now : word;
  signal stage : stages(0 to lpm_pipeline) := (others => (others => '0'));
begin
  -- An unconnected carry in is 0 when adding and 1 (no borrow) when subtracting.
  process (dataa, datab, cin, add_sub)
    variable add : BOOLEAN;
    variable operand : UNSIGNED(lpm_width-1 downto 0);
    variable carry : UNSIGNED(lpm_width downto 0);
    variable sum : UNSIGNED(lpm_width downto 0);
    variable over : STD_LOGIC;
  begin
    if lpm_direction = "ADD" then add := true;
    elsif lpm_direction = "SUB" then add := false;
    else add := add_sub /= '0';
    end if;
    if add then operand := UNSIGNED(datab); else operand := not UNSIGNED(datab); end if;
    carry := (others => '0');
    if cin = '1' or (cin /= '0' and not add) then carry(0) := '1'; end if;
    sum := ('0' & UNSIGNED(dataa)) + ('0' & operand) + carry;
    if lpm_representation = "UNSIGNED" then
      if add then over := sum(lpm_width); else over := not sum(lpm_width); end if;
    elsif dataa(lpm_width-1) = operand(lpm_width-1) and sum(lpm_width-1) /= dataa(lpm_width-1) then
      over := '1';
    else
      over := '0';
    end if;
    now <= over & STD_LOGIC_VECTOR(sum);
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

  result <= stage(lpm_pipeline)(lpm_width-1 downto 0);
  cout <= stage(lpm_pipeline)(lpm_width);
  overflow <= stage(lpm_pipeline)(lpm_width+1);
end behaviour;
