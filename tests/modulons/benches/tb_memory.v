// Bench of the memory variations rom_hex (64-bit words from the Intel HEX file memory.hex, address
// registered), rom_txt (1-bit words from the plain file memory.txt, output registered), ramdp64 (64-bit
// words, registered read address, write and read clock enables) and ramdp1 (six 1-bit words, registered
// output, read enable), against vectors/memory.vec. A line pulses each RAM's write clock, then the ROMs'
// clock, then each RAM's read clock (each RAM's clocks where its columns say so); the outputs are compared
// after the edges.
module tb_memory;
  reg clock = 1'b0;
  reg [3:0] rom_hex_address;
  reg [4:0] rom_txt_address;
  reg [63:0] ramdp64_data;
  reg [3:0] ramdp64_wraddress;
  reg ramdp64_wren;
  reg ramdp64_wrclken;
  reg ramdp64_rdclken;
  reg [3:0] ramdp64_rdaddress;
  reg ramdp64_wrclock_pulse;
  reg ramdp64_wrclock = 1'b0;
  reg ramdp64_rdclock_pulse;
  reg ramdp64_rdclock = 1'b0;
  reg ramdp1_data;
  reg [2:0] ramdp1_wraddress;
  reg ramdp1_wren;
  reg ramdp1_rden;
  reg [2:0] ramdp1_rdaddress;
  reg ramdp1_wrclock_pulse;
  reg ramdp1_wrclock = 1'b0;
  reg ramdp1_rdclock_pulse;
  reg ramdp1_rdclock = 1'b0;
  wire [63:0] rom_hex_q;
  reg [63:0] rom_hex_q_want;
  wire rom_txt_q;
  reg rom_txt_q_want;
  wire [63:0] ramdp64_q;
  reg [63:0] ramdp64_q_want;
  wire ramdp1_q;
  reg ramdp1_q_want;
  bench_vectors v ();
  rom_hex rom_hex_dut (.inclock(clock), .address(rom_hex_address), .q(rom_hex_q));
  rom_txt rom_txt_dut (.outclock(clock), .address(rom_txt_address), .q(rom_txt_q));
  ramdp64 ramdp64_dut (.data(ramdp64_data), .wraddress(ramdp64_wraddress), .wren(ramdp64_wren),
    .wrclken(ramdp64_wrclken), .rdclken(ramdp64_rdclken), .rdaddress(ramdp64_rdaddress),
    .wrclock(ramdp64_wrclock), .rdclock(ramdp64_rdclock), .q(ramdp64_q));
  ramdp1 ramdp1_dut (.data(ramdp1_data), .wraddress(ramdp1_wraddress), .wren(ramdp1_wren), .rden(ramdp1_rden),
    .rdaddress(ramdp1_rdaddress), .wrclock(ramdp1_wrclock), .rdclock(ramdp1_rdclock), .q(ramdp1_q));

  initial begin
    v.open;
    while (v.more(0)) begin
      v.values_read($fscanf(v.file, "%h %h %h %h %h %h %h %h %h %h %h %h %h %h %h %h %h %h %h %h",
                            rom_hex_address, rom_txt_address, ramdp64_data, ramdp64_wraddress, ramdp64_wren,
                            ramdp64_wrclken, ramdp64_rdclken, ramdp64_rdaddress, ramdp64_wrclock_pulse,
                            ramdp64_rdclock_pulse, ramdp1_data, ramdp1_wraddress, ramdp1_wren, ramdp1_rden,
                            ramdp1_rdaddress, ramdp1_wrclock_pulse, ramdp1_rdclock_pulse, rom_hex_q_want,
                            rom_txt_q_want, ramdp64_q_want), 20);
      v.values_read($fscanf(v.file, "%h\n",
                            ramdp1_q_want), 1);
      #2;
      ramdp64_wrclock = ramdp64_wrclock_pulse;
      ramdp1_wrclock = ramdp1_wrclock_pulse;
      #2 clock = 1'b1;
      #1;
      ramdp64_rdclock = ramdp64_rdclock_pulse;
      ramdp1_rdclock = ramdp1_rdclock_pulse;
      #3;
      v.check("rom_hex.q", rom_hex_q, rom_hex_q_want);
      v.check("rom_txt.q", rom_txt_q, rom_txt_q_want);
      v.check("ramdp64.q", ramdp64_q, ramdp64_q_want);
      v.check("ramdp1.q", ramdp1_q, ramdp1_q_want);
      #1 clock = 1'b0;
      ramdp64_wrclock = 1'b0;
      ramdp64_rdclock = 1'b0;
      ramdp1_wrclock = 1'b0;
      ramdp1_rdclock = 1'b0;
      #1;
      v.next;
    end
    v.finish;
  end
endmodule
