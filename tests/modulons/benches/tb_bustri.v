// Bench of the tri-state bus driver variations bustri1 and bustri64; the bench drives the bus itself while
// drive is high, against vectors/bustri.vec.
module tb_bustri;
  reg bustri1_data;
  reg bustri1_enabledt;
  reg bustri1_enabletr;
  reg bustri1_drive;
  reg bustri1_bus;
  reg [63:0] bustri64_data;
  reg bustri64_enabledt;
  reg bustri64_enabletr;
  reg bustri64_drive;
  reg [63:0] bustri64_bus;
  wire bustri1_tridata;
  reg bustri1_tridata_want;
  wire bustri1_result;
  reg bustri1_result_want;
  wire [63:0] bustri64_tridata;
  reg [63:0] bustri64_tridata_want;
  wire [63:0] bustri64_result;
  reg [63:0] bustri64_result_want;
  bench_vectors v ();
  bustri1 bustri1_dut (.data(bustri1_data), .enabledt(bustri1_enabledt), .enabletr(bustri1_enabletr),
    .tridata(bustri1_tridata), .result(bustri1_result));
  assign bustri1_tridata = bustri1_drive ? bustri1_bus : {1{1'bz}};
  bustri64 bustri64_dut (.data(bustri64_data), .enabledt(bustri64_enabledt), .enabletr(bustri64_enabletr),
    .tridata(bustri64_tridata), .result(bustri64_result));
  assign bustri64_tridata = bustri64_drive ? bustri64_bus : {64{1'bz}};

  initial begin
    v.open;
    while (v.more(0)) begin
      v.values_read($fscanf(v.file, "%h %h %h %h %h %h %h %h %h %h %h %h %h %h\n",
                            bustri1_data, bustri1_enabledt, bustri1_enabletr, bustri1_drive, bustri1_bus,
                            bustri64_data, bustri64_enabledt, bustri64_enabletr, bustri64_drive, bustri64_bus,
                            bustri1_tridata_want, bustri1_result_want, bustri64_tridata_want,
                            bustri64_result_want), 14);
      #1;
      v.check("bustri1.tridata", bustri1_tridata, bustri1_tridata_want);
      v.check("bustri1.result", bustri1_result, bustri1_result_want);
      v.check("bustri64.tridata", bustri64_tridata, bustri64_tridata_want);
      v.check("bustri64.result", bustri64_result, bustri64_result_want);
      v.next;
    end
    v.finish;
  end
endmodule
