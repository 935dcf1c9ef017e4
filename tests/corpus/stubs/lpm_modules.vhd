-- Stand-ins with the ports of the library modules that the VHDL tests' own cases instantiate.
library ieee;
use ieee.std_logic_1164.all;

entity lpm_counter is
  generic (lpm_width : natural := 8; lpm_direction : string := "UNUSED");
  port (data : in std_logic_vector(lpm_width - 1 downto 0) := (others => '0');
        clock : in std_logic; cnt_en : in std_logic := '1'; aclr : in std_logic := '0';
        q : out std_logic_vector(lpm_width - 1 downto 0));
end lpm_counter;

architecture stub of lpm_counter is
begin
  q <= (others => '0') when aclr = '1' else data when rising_edge(clock) and cnt_en = '1';
end stub;

library ieee;
use ieee.std_logic_1164.all;

entity lpm_add_sub is
  generic (lpm_width : natural := 8);
  port (dataa, datab : in std_logic_vector(lpm_width - 1 downto 0);
        result : out std_logic_vector(lpm_width - 1 downto 0));
end lpm_add_sub;

architecture stub of lpm_add_sub is
begin
  result <= dataa xor datab;
end stub;

library ieee;
use ieee.std_logic_1164.all;

entity lpm_compare is
  generic (lpm_width : natural := 8);
  port (dataa, datab : in std_logic_vector(lpm_width - 1 downto 0); clken : in std_logic := '1';
        aeb : out std_logic);
end lpm_compare;

architecture stub of lpm_compare is
begin
  aeb <= '1' when dataa = datab and clken = '1' else '0';
end stub;
