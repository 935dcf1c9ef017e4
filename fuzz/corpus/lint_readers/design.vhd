LIBRARY ieee;
USE ieee.std_logic_1164.all;
ENTITY top IS
  PORT (a : IN STD_LOGIC; q : OUT STD_LOGIC);
END top;
ARCHITECTURE s OF top IS
  COMPONENT sub
    PORT (d : IN STD_LOGIC; o : OUT STD_LOGIC);
  END COMPONENT;
BEGIN
  sub_component : sub PORT MAP (d => a, o => q);
END s;
