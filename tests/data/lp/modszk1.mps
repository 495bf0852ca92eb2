NAME          MODSZK1
ROWS
 N  OBJ.FUNC
 E  ROW0002
 E  ROW0003
 E  ROW0004
 E  ROW0005
 E  ROW0006
 E  ROW0007
 E  ROW0008
 E  ROW0009
 E  ROW0010
 E  ROW0011
 E  ROW0012
 E  ROW0013
 E  ROW0014
 E  ROW0015
 E  ROW0016
 E  ROW0017
 E  ROW0018
 E  ROW0019
 E  ROW0020
 E  ROW0021
 E  ROW0022
 E  ROW0023
 E  ROW0024
 E  ROW0025
 E  ROW0026
 E  ROW0027
 E  ROW0028
 E  ROW0029
 E  ROW0030
 E  ROW0031
 E  ROW0032
 E  ROW0033
 E  ROW0034
 E  ROW0035
 E  ROW0036
 E  ROW0037
 E  ROW0038
 E  ROW0039
 E  ROW0040
 E  ROW0041
 E  ROW0042
 E  ROW0043
 E  ROW0044
 E  ROW0045
 E  ROW0046
 E  ROW0047
 E  ROW0048
 E  ROW0049
 E  ROW0050
 E  ROW0051
 E  ROW0052
 E  ROW0053
 E  ROW0054
 E  ROW0055
 E  ROW0056
 E  ROW0057
 E  ROW0058
 E  ROW0059
 E  ROW0060
 E  ROW0061
 E  ROW0062
 E  ROW0063
 E  ROW0064
 E  ROW0065
 E  ROW0066
 E  ROW0067
 E  ROW0068
 E  ROW0069
 E  ROW0070
 E  ROW0071
 E  ROW0072
 E  ROW0073
 E  ROW0074
 E  ROW0075
 E  ROW0076
 E  ROW0077
 E  ROW0078
 E  ROW0079
 E  ROW0080
 E  ROW0081
 E  ROW0082
 E  ROW0083
 E  ROW0084
 E  ROW0085
 E  ROW0086
 E  ROW0087
 E  ROW0088
 E  ROW0089
 E  ROW0090
 E  ROW0091
 E  ROW0092
 E  ROW0093
 E  ROW0094
 E  ROW0095
 E  ROW0096
 E  ROW0097
 E  ROW0098
 E  ROW0099
 E  ROW0100
 E  ROW0101
 E  ROW0102
 E  ROW0103
 E  ROW0104
 E  ROW0105
 E  ROW0106
 E  ROW0107
 E  ROW0108
 E  ROW0109
 E  ROW0110
 E  ROW0111
 E  ROW0112
 E  ROW0113
 E  ROW0114
 E  ROW0115
 E  ROW0116
 E  ROW0117
 E  ROW0118
 E  ROW0119
 E  ROW0120
 E  ROW0121
 E  ROW0122
 E  ROW0123
 E  ROW0124
 E  ROW0125
 E  ROW0126
 E  ROW0127
 E  ROW0128
 E  ROW0129
 E  ROW0130
 E  ROW0131
 E  ROW0132
 E  ROW0133
 E  ROW0134
 E  ROW0135
 E  ROW0136
 E  ROW0137
 E  ROW0138
 E  ROW0139
 E  ROW0140
 E  ROW0141
 E  ROW0142
 E  ROW0143
 E  ROW0144
 E  ROW0145
 E  ROW0146
 E  ROW0147
 E  ROW0148
 E  ROW0149
 E  ROW0150
 E  ROW0151
 E  ROW0152
 E  ROW0153
 E  ROW0154
 E  ROW0155
 E  ROW0156
 E  ROW0157
 E  ROW0158
 E  ROW0159
 E  ROW0160
 E  ROW0161
 E  ROW0162
 E  ROW0163
 E  ROW0164
 E  ROW0165
 E  ROW0166
 E  ROW0167
 E  ROW0168
 E  ROW0169
 E  ROW0170
 E  ROW0171
 E  ROW0172
 E  ROW0173
 E  ROW0174
 E  ROW0175
 E  ROW0176
 E  ROW0177
 E  ROW0178
 E  ROW0179
 E  ROW0180
 E  ROW0181
 E  ROW0182
 E  ROW0183
 E  ROW0184
 E  ROW0185
 E  ROW0186
 E  ROW0187
 E  ROW0188
 E  ROW0189
 E  ROW0190
 E  ROW0191
 E  ROW0192
 E  ROW0193
 E  ROW0194
 E  ROW0195
 E  ROW0196
 E  ROW0197
 E  ROW0198
 E  ROW0199
 E  ROW0200
 E  ROW0201
 E  ROW0202
 E  ROW0203
 E  ROW0204
 E  ROW0205
 E  ROW0206
 E  ROW0207
 E  ROW0208
 E  ROW0209
 E  ROW0210
 E  ROW0211
 E  ROW0212
 E  ROW0213
 E  ROW0214
 E  ROW0215
 E  ROW0216
 E  ROW0217
 E  ROW0218
 E  ROW0219
 E  ROW0220
 E  ROW0221
 E  ROW0222
 E  ROW0223
 E  ROW0224
 E  ROW0225
 E  ROW0226
 E  ROW0227
 E  ROW0228
 E  ROW0229
 E  ROW0230
 E  ROW0231
 E  ROW0232
 E  ROW0233
 E  ROW0234
 E  ROW0235
 E  ROW0236
 E  ROW0237
 E  ROW0238
 E  ROW0239
 E  ROW0240
 E  ROW0241
 E  ROW0242
 E  ROW0243
 E  ROW0244
 E  ROW0245
 E  ROW0246
 E  ROW0247
 E  ROW0248
 E  ROW0249
 E  ROW0250
 E  ROW0251
 E  ROW0252
 E  ROW0253
 E  ROW0254
 E  ROW0255
 E  ROW0256
 E  ROW0257
 E  ROW0258
 E  ROW0259
 E  ROW0260
 E  ROW0261
 E  ROW0262
 E  ROW0263
 E  ROW0264
 E  ROW0265
 E  ROW0266
 E  ROW0267
 E  ROW0268
 E  ROW0269
 E  ROW0270
 E  ROW0271
 E  ROW0272
 E  ROW0273
 E  ROW0274
 E  ROW0275
 E  ROW0276
 E  ROW0277
 E  ROW0278
 E  ROW0279
 E  ROW0280
 E  ROW0281
 E  ROW0282
 E  ROW0283
 E  ROW0284
 E  ROW0285
 E  ROW0286
 E  ROW0287
 E  ROW0288
 E  ROW0289
 E  ROW0290
 E  ROW0291
 E  ROW0292
 E  ROW0293
 E  ROW0294
 E  ROW0295
 E  ROW0296
 E  ROW0297
 E  ROW0298
 E  ROW0299
 E  ROW0300
 E  ROW0301
 E  ROW0302
 E  ROW0303
 E  ROW0304
 E  ROW0305
 E  ROW0306
 E  ROW0307
 E  ROW0308
 E  ROW0309
 E  ROW0310
 E  ROW0311
 E  ROW0312
 E  ROW0313
 E  ROW0314
 E  ROW0315
 E  ROW0316
 E  ROW0317
 E  ROW0318
 E  ROW0319
 E  ROW0320
 E  ROW0321
 E  ROW0322
 E  ROW0323
 E  ROW0324
 E  ROW0325
 E  ROW0326
 E  ROW0327
 E  ROW0328
 E  ROW0329
 E  ROW0330
 E  ROW0331
 E  ROW0332
 E  ROW0333
 E  ROW0334
 E  ROW0335
 E  ROW0336
 E  ROW0337
 E  ROW0338
 E  ROW0339
 E  ROW0340
 E  ROW0341
 E  ROW0342
 E  ROW0343
 E  ROW0344
 E  ROW0345
 E  ROW0346
 E  ROW0347
 E  ROW0348
 E  ROW0349
 E  ROW0350
 E  ROW0351
 E  ROW0352
 E  ROW0353
 E  ROW0354
 E  ROW0355
 E  ROW0356
 E  ROW0357
 E  ROW0358
 E  ROW0359
 E  ROW0360
 E  ROW0361
 E  ROW0362
 E  ROW0363
 E  ROW0364
 E  ROW0365
 E  ROW0366
 E  ROW0367
 E  ROW0368
 E  ROW0369
 E  ROW0370
 E  ROW0371
 E  ROW0372
 E  ROW0373
 E  ROW0374
 E  ROW0375
 E  ROW0376
 E  ROW0377
 E  ROW0378
 E  ROW0379
 E  ROW0380
 E  ROW0381
 E  ROW0382
 E  ROW0383
 E  ROW0384
 E  ROW0385
 E  ROW0386
 E  ROW0387
 E  ROW0388
 E  ROW0389
 E  ROW0390
 E  ROW0391
 E  ROW0392
 E  ROW0393
 E  ROW0394
 E  ROW0395
 E  ROW0396
 E  ROW0397
 E  ROW0398
 E  ROW0399
 E  ROW0400
 E  ROW0401
 E  ROW0402
 E  ROW0403
 E  ROW0404
 E  ROW0405
 E  ROW0406
 E  ROW0407
 E  ROW0408
 E  ROW0409
 E  ROW0410
 E  ROW0411
 E  ROW0412
 E  ROW0413
 E  ROW0414
 E  ROW0415
 E  ROW0416
 E  ROW0417
 E  ROW0418
 E  ROW0419
 E  ROW0420
 E  ROW0421
 E  ROW0422
 E  ROW0423
 E  ROW0424
 E  ROW0425
 E  ROW0426
 E  ROW0427
 E  ROW0428
 E  ROW0429
 E  ROW0430
 E  ROW0431
 E  ROW0432
 E  ROW0433
 E  ROW0434
 E  ROW0435
 E  ROW0436
 E  ROW0437
 E  ROW0438
 E  ROW0439
 E  ROW0440
 E  ROW0441
 E  ROW0442
 E  ROW0443
 E  ROW0444
 E  ROW0445
 E  ROW0446
 E  ROW0447
 E  ROW0448
 E  ROW0449
 E  ROW0450
 E  ROW0451
 E  ROW0452
 E  ROW0453
 E  ROW0454
 E  ROW0455
 E  ROW0456
 E  ROW0457
 E  ROW0458
 E  ROW0459
 E  ROW0460
 E  ROW0461
 E  ROW0462
 E  ROW0463
 E  ROW0464
 E  ROW0465
 E  ROW0466
 E  ROW0467
 E  ROW0468
 E  ROW0469
 E  ROW0470
 E  ROW0471
 E  ROW0472
 E  ROW0473
 E  ROW0474
 E  ROW0475
 E  ROW0476
 E  ROW0477
 E  ROW0478
 E  ROW0479
 E  ROW0480
 E  ROW0481
 E  ROW0482
 E  ROW0483
 E  ROW0484
 E  ROW0485
 E  ROW0486
 E  ROW0487
 E  ROW0488
 E  ROW0489
 E  ROW0490
 E  ROW0491
 E  ROW0492
 E  ROW0493
 E  ROW0494
 E  ROW0495
 E  ROW0496
 E  ROW0497
 E  ROW0498
 E  ROW0499
 E  ROW0500
 E  ROW0501
 E  ROW0502
 E  ROW0503
 E  ROW0504
 E  ROW0505
 E  ROW0506
 E  ROW0507
 E  ROW0508
 E  ROW0509
 E  ROW0510
 E  ROW0511
 E  ROW0512
 E  ROW0513
 E  ROW0514
 E  ROW0515
 E  ROW0516
 E  ROW0517
 E  ROW0518
 E  ROW0519
 E  ROW0520
 E  ROW0521
 E  ROW0522
 E  ROW0523
 E  ROW0524
 E  ROW0525
 E  ROW0526
 E  ROW0527
 E  ROW0528
 E  ROW0529
 E  ROW0530
 E  ROW0531
 E  ROW0532
 E  ROW0533
 E  ROW0534
 E  ROW0535
 E  ROW0536
 E  ROW0537
 E  ROW0538
 E  ROW0539
 E  ROW0540
 E  ROW0541
 E  ROW0542
 E  ROW0543
 E  ROW0544
 E  ROW0545
 E  ROW0546
 E  ROW0547
 E  ROW0548
 E  ROW0549
 E  ROW0550
 E  ROW0551
 E  ROW0552
 E  ROW0553
 E  ROW0554
 E  ROW0555
 E  ROW0556
 E  ROW0557
 E  ROW0558
 E  ROW0559
 E  ROW0560
 E  ROW0561
 E  ROW0562
 E  ROW0563
 E  ROW0564
 E  ROW0565
 E  ROW0566
 E  ROW0567
 E  ROW0568
 E  ROW0569
 E  ROW0570
 E  ROW0571
 E  ROW0572
 E  ROW0573
 E  ROW0574
 E  ROW0575
 E  ROW0576
 E  ROW0577
 E  ROW0578
 E  ROW0579
 E  ROW0580
 E  ROW0581
 E  ROW0582
 E  ROW0583
 E  ROW0584
 E  ROW0585
 E  ROW0586
 E  ROW0587
 E  ROW0588
 E  ROW0589
 E  ROW0590
 E  ROW0591
 E  ROW0592
 E  ROW0593
 E  ROW0594
 E  ROW0595
 E  ROW0596
 E  ROW0597
 E  ROW0598
 E  ROW0599
 E  ROW0600
 E  ROW0601
 E  ROW0602
 E  ROW0603
 E  ROW0604
 E  ROW0605
 E  ROW0606
 E  ROW0607
 E  ROW0608
 E  ROW0609
 E  ROW0610
 E  ROW0611
 E  ROW0612
 E  ROW0613
 E  ROW0614
 E  ROW0615
 E  ROW0616
 E  ROW0617
 E  ROW0618
 E  ROW0619
 E  ROW0620
 E  ROW0621
 E  ROW0622
 E  ROW0623
 E  ROW0624
 E  ROW0625
 E  ROW0626
 E  ROW0627
 E  ROW0628
 E  ROW0629
 E  ROW0630
 E  ROW0631
 E  ROW0632
 E  ROW0633
 E  ROW0634
 E  ROW0635
 E  ROW0636
 E  ROW0637
 E  ROW0638
 E  ROW0639
 E  ROW0640
 E  ROW0641
 E  ROW0642
 E  ROW0643
 E  ROW0644
 E  ROW0645
 E  ROW0646
 E  ROW0647
 E  ROW0648
 E  ROW0649
 E  ROW0650
 E  ROW0651
 E  ROW0652
 E  ROW0653
 E  ROW0654
 E  ROW0655
 E  ROW0656
 E  ROW0657
 E  ROW0658
 E  ROW0659
 E  ROW0660
 E  ROW0661
 E  ROW0662
 E  ROW0663
 E  ROW0664
 E  ROW0665
 E  ROW0666
 E  ROW0667
 E  ROW0668
 E  ROW0669
 E  ROW0670
 E  ROW0671
 E  ROW0672
 E  ROW0673
 E  ROW0674
 E  ROW0675
 E  ROW0676
 E  ROW0677
 E  ROW0678
 E  ROW0679
 E  ROW0680
 E  ROW0681
 E  ROW0682
 E  ROW0683
 E  ROW0684
 E  ROW0685
 E  ROW0686
 E  ROW0687
 E  ROW0688
COLUMNS
    COL0001   OBJ.FUNC       1.21084   ROW0002             1.
    COL0002   OBJ.FUNC       1.21084   ROW0002            -1.
    COL0003   OBJ.FUNC        .93228   ROW0003             1.
    COL0004   OBJ.FUNC        .93228   ROW0003            -1.
    COL0005   OBJ.FUNC        .68362   ROW0004             1.
    COL0006   OBJ.FUNC        .68362   ROW0004            -1.
    COL0007   OBJ.FUNC        .47176   ROW0005             1.
    COL0008   OBJ.FUNC        .47176   ROW0005            -1.
    COL0009   OBJ.FUNC        .68521   ROW0006             1.
    COL0010   OBJ.FUNC        .68521   ROW0006            -1.
    COL0011   OBJ.FUNC        .56582   ROW0007             1.
    COL0012   OBJ.FUNC        .56582   ROW0007            -1.
    COL0013   OBJ.FUNC       1.20413   ROW0008             1.
    COL0014   OBJ.FUNC       1.20413   ROW0008            -1.
    COL0015   OBJ.FUNC         .9169   ROW0009             1.
    COL0016   OBJ.FUNC         .9169   ROW0009            -1.
    COL0017   OBJ.FUNC       1.70365   ROW0010             1.
    COL0018   OBJ.FUNC       1.70365   ROW0010            -1.
    COL0019   OBJ.FUNC       1.62051   ROW0011             1.
    COL0020   OBJ.FUNC       1.62051   ROW0011            -1.
    COL0021   OBJ.FUNC        .38357   ROW0012             1.
    COL0022   OBJ.FUNC        .38357   ROW0012            -1.
    COL0023   OBJ.FUNC        .36075   ROW0013             1.
    COL0024   OBJ.FUNC        .36075   ROW0013            -1.
    COL0025   OBJ.FUNC        .51852   ROW0014             1.
    COL0026   OBJ.FUNC        .51852   ROW0014            -1.
    COL0027   OBJ.FUNC        .72061   ROW0015             1.
    COL0028   OBJ.FUNC        .72061   ROW0015            -1.
    COL0029   ROW0002             1.   ROW0016        -.02278
    COL0029   ROW0017        -.06362   ROW0018        -.02837
    COL0029   ROW0019        -.02278   ROW0020        -.01704
    COL0029   ROW0021        -.02653   ROW0022        -.00837
    COL0029   ROW0023        -.00363   ROW0024        -.02568
    COL0029   ROW0025        -.03285   ROW0026        -.01955
    COL0029   ROW0027        -.19695   ROW0028        -.06282
    COL0029   ROW0029        -.05092   ROW0030        -.30539
    COL0029   ROW0031        -.01496   ROW0032        -.00652
    COL0029   ROW0033        -.03921   ROW0034             1.
    COL0029   ROW0035             1.   ROW0036         .27112
    COL0029   ROW0037             1.
    COL0030   ROW0016             1.   ROW0038            -1.
    COL0030   ROW0039            -1.
    COL0031   OBJ.FUNC      53.15756   ROW0016             1.
    COL0032   OBJ.FUNC      53.15756   ROW0016            -1.
    COL0033   ROW0017             1.   ROW0039            -1.
    COL0033   ROW0040            -1.
    COL0034   OBJ.FUNC      19.03167   ROW0017             1.
    COL0035   OBJ.FUNC      19.03167   ROW0017            -1.
    COL0036   ROW0018             1.   ROW0039            -1.
    COL0036   ROW0041            -1.
    COL0037   OBJ.FUNC      42.68761   ROW0018             1.
    COL0038   OBJ.FUNC      42.68761   ROW0018            -1.
    COL0039   ROW0019             1.   ROW0039            -1.
    COL0039   ROW0042            -1.
    COL0040   OBJ.FUNC      53.15756   ROW0019             1.
    COL0041   OBJ.FUNC      53.15756   ROW0019            -1.
    COL0042   ROW0020             1.   ROW0039            -1.
    COL0042   ROW0043            -1.
    COL0043   OBJ.FUNC      71.04291   ROW0020             1.
    COL0044   OBJ.FUNC      71.04291   ROW0020            -1.
    COL0045   ROW0021             1.   ROW0039            -1.
    COL0045   ROW0044            -1.
    COL0046   OBJ.FUNC       45.6371   ROW0021             1.
    COL0047   OBJ.FUNC       45.6371   ROW0021            -1.
    COL0048   ROW0022             1.   ROW0039            -1.
    COL0048   ROW0045            -1.
    COL0049   OBJ.FUNC      144.7178   ROW0022             1.
    COL0050   OBJ.FUNC      144.7178   ROW0022            -1.
    COL0051   ROW0023             1.   ROW0039            -1.
    COL0051   ROW0046            -1.
    COL0052   OBJ.FUNC      334.0013   ROW0023             1.
    COL0053   OBJ.FUNC      334.0013   ROW0023            -1.
    COL0054   ROW0024             1.   ROW0039            -1.
    COL0054   ROW0047            -1.
    COL0055   OBJ.FUNC      47.14757   ROW0024             1.
    COL0056   OBJ.FUNC      47.14757   ROW0024            -1.
    COL0057   ROW0025             1.   ROW0039            -1.
    COL0057   ROW0048            -1.
    COL0058   OBJ.FUNC      36.85957   ROW0025             1.
    COL0059   OBJ.FUNC      36.85957   ROW0025            -1.
    COL0060   ROW0026             1.   ROW0039            -1.
    COL0060   ROW0049            -1.
    COL0061   OBJ.FUNC       61.9502   ROW0026             1.
    COL0062   OBJ.FUNC       61.9502   ROW0026            -1.
    COL0063   ROW0027             1.   ROW0039            -1.
    COL0063   ROW0050             1.
    COL0064   OBJ.FUNC       6.14802   ROW0027             1.
    COL0065   OBJ.FUNC       6.14802   ROW0027            -1.
    COL0066   ROW0034            -1.   ROW0038         .90604
    COL0067   ROW0030             1.   ROW0034            -1.
    COL0068   OBJ.FUNC       3.96489   ROW0030             1.
    COL0069   OBJ.FUNC       3.96489   ROW0030            -1.
    COL0070   ROW0031             1.   ROW0034            -1.
    COL0071   OBJ.FUNC      80.91924   ROW0031             1.
    COL0072   OBJ.FUNC      80.91924   ROW0031            -1.
    COL0073   ROW0032             1.   ROW0034            -1.
    COL0073   ROW0051            -1.   ROW0052             1.
    COL0074   OBJ.FUNC      30.87945   ROW0032             1.
    COL0075   OBJ.FUNC      30.87945   ROW0032            -1.
    COL0076   ROW0033             1.   ROW0034            -1.
    COL0076   ROW0053            -1.   ROW0054             1.
    COL0077   OBJ.FUNC      185.8045   ROW0033             1.
    COL0078   OBJ.FUNC      185.8045   ROW0033            -1.
    COL0079   ROW0039         .95423   ROW0055       -1.02574
    COL0080   ROW0035            -1.   ROW0055             1.
    COL0081   ROW0028             1.   ROW0055       -1.02574
    COL0081   ROW0056        -.03909   ROW0057        -.69609
    COL0081   ROW0058        -.09822   ROW0059          .8334
    COL0081   ROW0060             1.
    COL0082   OBJ.FUNC      19.27377   ROW0028             1.
    COL0083   OBJ.FUNC      19.27377   ROW0028            -1.
    COL0084   ROW0056             1.   ROW0059            -1.
    COL0084   ROW0061             1.
    COL0085   OBJ.FUNC      493.0966   ROW0056             1.
    COL0086   OBJ.FUNC      493.0966   ROW0056            -1.
    COL0087   ROW0057             1.   ROW0059            -1.
    COL0087   ROW0062             1.
    COL0088   OBJ.FUNC      27.68856   ROW0057             1.
    COL0089   OBJ.FUNC      27.68856   ROW0057            -1.
    COL0090   ROW0058             1.   ROW0059            -1.
    COL0090   ROW0063             1.
    COL0091   OBJ.FUNC      196.2323   ROW0058             1.
    COL0092   OBJ.FUNC      196.2323   ROW0058            -1.
    COL0093   ROW0061        -.95098   ROW0064             1.
    COL0094   ROW0036        -.72888   ROW0064         -.7233
    COL0094   ROW0065             1.
    COL0095   ROW0029             1.   ROW0055       -1.02574
    COL0095   ROW0066        -.04656   ROW0067        -.07062
    COL0095   ROW0068        -.34777   ROW0069        -.03495
    COL0095   ROW0070        -.09825   ROW0071        -.04618
    COL0095   ROW0072        -.28724   ROW0073         .93157
    COL0095   ROW0074             1.
    COL0096   OBJ.FUNC      23.77782   ROW0029             1.
    COL0097   OBJ.FUNC      23.77782   ROW0029            -1.
    COL0098   ROW0066             1.   ROW0073            -1.
    COL0098   ROW0075             1.
    COL0099   OBJ.FUNC      510.7252   ROW0066             1.
    COL0100   OBJ.FUNC      510.7252   ROW0066            -1.
    COL0101   ROW0067             1.   ROW0073            -1.
    COL0101   ROW0076             1.
    COL0102   OBJ.FUNC      336.7003   ROW0067             1.
    COL0103   OBJ.FUNC      336.7003   ROW0067            -1.
    COL0104   ROW0068             1.   ROW0073            -1.
    COL0104   ROW0077             1.
    COL0105   OBJ.FUNC      68.37139   ROW0068             1.
    COL0106   OBJ.FUNC      68.37139   ROW0068            -1.
    COL0107   ROW0069             1.   ROW0073            -1.
    COL0107   ROW0078             1.
    COL0108   OBJ.FUNC      680.2721   ROW0069             1.
    COL0109   OBJ.FUNC      680.2721   ROW0069            -1.
    COL0110   ROW0070             1.   ROW0073            -1.
    COL0110   ROW0079             1.
    COL0111   OBJ.FUNC      242.0135   ROW0070             1.
    COL0112   OBJ.FUNC      242.0135   ROW0070            -1.
    COL0113   ROW0071             1.   ROW0073            -1.
    COL0113   ROW0080             1.
    COL0114   OBJ.FUNC       514.933   ROW0071             1.
    COL0115   OBJ.FUNC       514.933   ROW0071            -1.
    COL0116   ROW0072             1.   ROW0073            -1.
    COL0116   ROW0081             1.
    COL0117   OBJ.FUNC      82.78146   ROW0072             1.
    COL0118   OBJ.FUNC      82.78146   ROW0072            -1.
    COL0119   ROW0075        -.92844   ROW0082             1.
    COL0120   ROW0036        -.72888   ROW0082        -.42579
    COL0120   ROW0083             1.
    COL0121   OBJ.FUNC        .88256   ROW0036             1.
    COL0122   OBJ.FUNC        .88256   ROW0036            -1.
    COL0123   ROW0035            -1.   ROW0084             1.
    COL0124   ROW0003             1.   ROW0037             1.
    COL0124   ROW0085        -.00827   ROW0086        -.01181
    COL0124   ROW0087        -.00702   ROW0088        -.00664
    COL0124   ROW0089        -.00404   ROW0090        -.01743
    COL0124   ROW0091        -.00936   ROW0092        -.05467
    COL0124   ROW0093        -.02806   ROW0094        -.01598
    COL0124   ROW0095        -.11069   ROW0096        -.05976
    COL0124   ROW0097        -.02722   ROW0098        -.00074
    COL0124   ROW0099             1.   ROW0100             1.
    COL0124   ROW0101          .4508
    COL0125   ROW0038            -1.   ROW0085             1.
    COL0125   ROW0102            -1.
    COL0126   OBJ.FUNC      112.6888   ROW0085             1.
    COL0127   OBJ.FUNC      112.6888   ROW0085            -1.
    COL0128   ROW0040            -1.   ROW0086             1.
    COL0128   ROW0102            -1.
    COL0129   OBJ.FUNC      78.95152   ROW0086             1.
    COL0130   OBJ.FUNC      78.95152   ROW0086            -1.
    COL0131   ROW0041            -1.   ROW0087             1.
    COL0131   ROW0102            -1.
    COL0132   OBJ.FUNC      132.8021   ROW0087             1.
    COL0133   OBJ.FUNC      132.8021   ROW0087            -1.
    COL0134   ROW0043            -1.   ROW0088             1.
    COL0134   ROW0102            -1.
    COL0135   OBJ.FUNC        140.41   ROW0088             1.
    COL0136   OBJ.FUNC        140.41   ROW0088            -1.
    COL0137   ROW0047            -1.   ROW0089             1.
    COL0137   ROW0102            -1.
    COL0138   OBJ.FUNC       230.521   ROW0089             1.
    COL0139   OBJ.FUNC       230.521   ROW0089            -1.
    COL0140   ROW0048            -1.   ROW0090             1.
    COL0140   ROW0102            -1.
    COL0141   OBJ.FUNC       53.4931   ROW0090             1.
    COL0142   OBJ.FUNC       53.4931   ROW0090            -1.
    COL0143   ROW0049            -1.   ROW0091             1.
    COL0143   ROW0102            -1.
    COL0144   OBJ.FUNC      99.56193   ROW0091             1.
    COL0145   OBJ.FUNC      99.56193   ROW0091            -1.
    COL0146   ROW0050             1.   ROW0092             1.
    COL0146   ROW0102            -1.
    COL0147   OBJ.FUNC      17.05437   ROW0092             1.
    COL0148   OBJ.FUNC      17.05437   ROW0092            -1.
    COL0149   ROW0099            -1.   ROW0103         .90819
    COL0150   ROW0095             1.   ROW0099            -1.
    COL0151   OBJ.FUNC       8.42276   ROW0095             1.
    COL0152   OBJ.FUNC       8.42276   ROW0095            -1.
    COL0153   ROW0096             1.   ROW0099            -1.
    COL0154   OBJ.FUNC      15.60014   ROW0096             1.
    COL0155   OBJ.FUNC      15.60014   ROW0096            -1.
    COL0156   ROW0051            -1.   ROW0052             1.
    COL0156   ROW0097             1.   ROW0099            -1.
    COL0157   OBJ.FUNC      1256.281   ROW0097             1.
    COL0158   OBJ.FUNC      1256.281   ROW0097            -1.
    COL0159   ROW0053            -1.   ROW0054             1.
    COL0159   ROW0098             1.   ROW0099            -1.
    COL0160   OBJ.FUNC      34.24892   ROW0098             1.
    COL0161   OBJ.FUNC      34.24892   ROW0098            -1.
    COL0162   ROW0102         .88984   ROW0104       -1.04008
    COL0163   ROW0100            -1.   ROW0104             1.
    COL0164   ROW0060             1.   ROW0093             1.
    COL0164   ROW0104       -1.04008   ROW0105        -.35719
    COL0164   ROW0106        -.38238   ROW0107         -.0529
    COL0164   ROW0108         -.1026   ROW0109         .89507
    COL0165   OBJ.FUNC      33.22701   ROW0093             1.
    COL0166   OBJ.FUNC      33.22701   ROW0093            -1.
    COL0167   ROW0105             1.   ROW0109            -1.
    COL0167   ROW0110             1.
    COL0168   OBJ.FUNC      93.02325   ROW0105             1.
    COL0169   OBJ.FUNC      93.02325   ROW0105            -1.
    COL0170   ROW0062             1.   ROW0106             1.
    COL0170   ROW0109            -1.
    COL0171   OBJ.FUNC      86.89607   ROW0106             1.
    COL0172   OBJ.FUNC      86.89607   ROW0106            -1.
    COL0173   ROW0107             1.   ROW0109            -1.
    COL0173   ROW0111             1.
    COL0174   OBJ.FUNC      628.1407   ROW0107             1.
    COL0175   OBJ.FUNC      628.1407   ROW0107            -1.
    COL0176   ROW0063             1.   ROW0108             1.
    COL0176   ROW0109            -1.
    COL0177   OBJ.FUNC      323.8342   ROW0108             1.
    COL0178   OBJ.FUNC      323.8342   ROW0108            -1.
    COL0179   ROW0112        -.99995   ROW0113             1.
    COL0180   ROW0065             1.   ROW0101         -.5492
    COL0180   ROW0113            -1.
    COL0181   ROW0074             1.   ROW0094             1.
    COL0181   ROW0104       -1.04008   ROW0114        -.08574
    COL0181   ROW0115        -.63521   ROW0116        -.08283
    COL0181   ROW0117        -.06883   ROW0118         .87261
    COL0182   OBJ.FUNC      58.32944   ROW0094             1.
    COL0183   OBJ.FUNC      58.32944   ROW0094            -1.
    COL0184   ROW0076             1.   ROW0114             1.
    COL0184   ROW0118            -1.
    COL0185   OBJ.FUNC      680.2721   ROW0114             1.
    COL0186   OBJ.FUNC      680.2721   ROW0114            -1.
    COL0187   ROW0077             1.   ROW0115             1.
    COL0187   ROW0118            -1.
    COL0188   OBJ.FUNC      91.82736   ROW0115             1.
    COL0189   OBJ.FUNC      91.82736   ROW0115            -1.
    COL0190   ROW0116             1.   ROW0118            -1.
    COL0190   ROW0119             1.
    COL0191   OBJ.FUNC      704.2253   ROW0116             1.
    COL0192   OBJ.FUNC      704.2253   ROW0116            -1.
    COL0193   ROW0081             1.   ROW0117             1.
    COL0193   ROW0118            -1.
    COL0194   OBJ.FUNC      847.4576   ROW0117             1.
    COL0195   OBJ.FUNC      847.4576   ROW0117            -1.
    COL0196   ROW0120        -.90358   ROW0121             1.
    COL0197   ROW0083             1.   ROW0101         -.5492
    COL0197   ROW0121            -1.
    COL0198   OBJ.FUNC        .51201   ROW0101             1.
    COL0199   OBJ.FUNC        .51201   ROW0101            -1.
    COL0200   ROW0084             1.   ROW0100            -1.
    COL0201   ROW0004             1.   ROW0122         -.1411
    COL0201   ROW0123        -.04635   ROW0124        -.00365
    COL0201   ROW0125        -.03645   ROW0126        -.00576
    COL0201   ROW0127        -.00226   ROW0128        -.00689
    COL0201   ROW0129        -.11818   ROW0130        -.12029
    COL0201   ROW0131        -.03069   ROW0132        -.16835
    COL0201   ROW0133        -.14692   ROW0134        -.04435
    COL0201   ROW0135        -.00112   ROW0136        -.00678
    COL0201   ROW0137             1.   ROW0138             1.
    COL0201   ROW0139         .25189
    COL0202   ROW0038            -1.   ROW0122             1.
    COL0202   ROW0140            -1.
    COL0203   OBJ.FUNC       4.84482   ROW0122             1.
    COL0204   OBJ.FUNC       4.84482   ROW0122            -1.
    COL0205   ROW0103            -1.   ROW0123             1.
    COL0205   ROW0140            -1.
    COL0206   OBJ.FUNC      14.75013   ROW0123             1.
    COL0207   OBJ.FUNC      14.75013   ROW0123            -1.
    COL0208   ROW0042            -1.   ROW0124             1.
    COL0208   ROW0140            -1.
    COL0209   OBJ.FUNC      187.2659   ROW0124             1.
    COL0210   OBJ.FUNC      187.2659   ROW0124            -1.
    COL0211   ROW0044            -1.   ROW0125             1.
    COL0211   ROW0140            -1.
    COL0212   OBJ.FUNC      18.75539   ROW0125             1.
    COL0213   OBJ.FUNC      18.75539   ROW0125            -1.
    COL0214   ROW0045            -1.   ROW0126             1.
    COL0214   ROW0140            -1.
    COL0215   OBJ.FUNC      118.5958   ROW0126             1.
    COL0216   OBJ.FUNC      118.5958   ROW0126            -1.
    COL0217   ROW0046            -1.   ROW0127             1.
    COL0217   ROW0140            -1.
    COL0218   OBJ.FUNC      301.9323   ROW0127             1.
    COL0219   OBJ.FUNC      301.9323   ROW0127            -1.
    COL0220   ROW0047            -1.   ROW0128             1.
    COL0220   ROW0140            -1.
    COL0221   OBJ.FUNC      99.20635   ROW0128             1.
    COL0222   OBJ.FUNC      99.20635   ROW0128            -1.
    COL0223   ROW0048            -1.   ROW0129             1.
    COL0223   ROW0140            -1.
    COL0224   OBJ.FUNC       5.78469   ROW0129             1.
    COL0225   OBJ.FUNC       5.78469   ROW0129            -1.
    COL0226   ROW0050             1.   ROW0130             1.
    COL0226   ROW0140            -1.
    COL0227   OBJ.FUNC       5.68317   ROW0130             1.
    COL0228   OBJ.FUNC       5.68317   ROW0130            -1.
    COL0229   ROW0040         .97015   ROW0137            -1.
    COL0230   ROW0133             1.   ROW0137            -1.
    COL0231   OBJ.FUNC       4.65289   ROW0133             1.
    COL0232   OBJ.FUNC       4.65289   ROW0133            -1.
    COL0233   ROW0134             1.   ROW0137            -1.
    COL0234   OBJ.FUNC      15.41307   ROW0134             1.
    COL0235   OBJ.FUNC      15.41307   ROW0134            -1.
    COL0236   ROW0051            -1.   ROW0135             1.
    COL0236   ROW0137            -1.
    COL0237   OBJ.FUNC      100.8064   ROW0135             1.
    COL0238   OBJ.FUNC      100.8064   ROW0135            -1.
    COL0239   ROW0053            -1.   ROW0136             1.
    COL0239   ROW0137            -1.
    COL0240   OBJ.FUNC      609.7561   ROW0136             1.
    COL0241   OBJ.FUNC      609.7561   ROW0136            -1.
    COL0242   ROW0140         .93889   ROW0141       -1.02126
    COL0243   ROW0138            -1.   ROW0141             1.
    COL0244   ROW0060             1.   ROW0131             1.
    COL0244   ROW0141       -1.02126   ROW0142        -.51002
    COL0244   ROW0143        -.14855   ROW0144        -.03354
    COL0244   ROW0145         .69212
    COL0245   OBJ.FUNC      22.27172   ROW0131             1.
    COL0246   OBJ.FUNC      22.27172   ROW0131            -1.
    COL0247   ROW0061             1.   ROW0142             1.
    COL0247   ROW0145            -1.
    COL0248   OBJ.FUNC      43.66812   ROW0142             1.
    COL0249   OBJ.FUNC      43.66812   ROW0142            -1.
    COL0250   ROW0062             1.   ROW0143             1.
    COL0250   ROW0145            -1.
    COL0251   OBJ.FUNC       149.925   ROW0143             1.
    COL0252   OBJ.FUNC       149.925   ROW0143            -1.
    COL0253   ROW0144             1.   ROW0145            -1.
    COL0253   ROW0146             1.
    COL0254   OBJ.FUNC      664.0106   ROW0144             1.
    COL0255   OBJ.FUNC      664.0106   ROW0144            -1.
    COL0256   ROW0148             1.
    COL0257   ROW0065             1.   ROW0139        -.74811
    COL0258   ROW0074             1.   ROW0132             1.
    COL0258   ROW0141       -1.02126   ROW0149         -.7903
    COL0258   ROW0150        -.03949   ROW0151        -.01069
    COL0258   ROW0152        -.00804   ROW0153         .84853
    COL0259   OBJ.FUNC       4.06075   ROW0132             1.
    COL0260   OBJ.FUNC       4.06075   ROW0132            -1.
    COL0261   ROW0149             1.   ROW0153            -1.
    COL0261   ROW0154             1.
    COL0262   OBJ.FUNC       5.13822   ROW0149             1.
    COL0263   OBJ.FUNC       5.13822   ROW0149            -1.
    COL0264   ROW0077             1.   ROW0150             1.
    COL0264   ROW0153            -1.
    COL0265   OBJ.FUNC      102.8172   ROW0150             1.
    COL0266   OBJ.FUNC      102.8172   ROW0150            -1.
    COL0267   ROW0078             1.   ROW0151             1.
    COL0267   ROW0153            -1.
    COL0268   OBJ.FUNC      379.9392   ROW0151             1.
    COL0269   OBJ.FUNC      379.9392   ROW0151            -1.
    COL0270   ROW0119             1.   ROW0152             1.
    COL0270   ROW0153            -1.
    COL0271   OBJ.FUNC      505.0505   ROW0152             1.
    COL0272   OBJ.FUNC      505.0505   ROW0152            -1.
    COL0273   ROW0154            -1.   ROW0155             1.
    COL0274   ROW0083             1.   ROW0139        -.74811
    COL0274   ROW0155            -1.
    COL0275   OBJ.FUNC        .51143   ROW0139             1.
    COL0276   OBJ.FUNC        .51143   ROW0139            -1.
    COL0277   ROW0138            -1.
    COL0278   ROW0005             1.   ROW0156        -.03434
    COL0278   ROW0157        -.01848   ROW0158        -.06875
    COL0278   ROW0159        -.19128   ROW0160        -.00557
    COL0278   ROW0161        -.00625   ROW0162        -.00943
    COL0278   ROW0163        -.01655   ROW0164        -.01129
    COL0278   ROW0165        -.00664   ROW0166        -.13805
    COL0278   ROW0167        -.11935   ROW0168        -.15825
    COL0278   ROW0169        -.00648   ROW0170        -.01696
    COL0278   ROW0171        -.18911   ROW0172        -.06187
    COL0278   ROW0173             1.   ROW0174             1.
    COL0278   ROW0175         .19857
    COL0279   ROW0038            -1.   ROW0156             1.
    COL0279   ROW0176            -1.
    COL0280   OBJ.FUNC      13.73966   ROW0156             1.
    COL0281   OBJ.FUNC      13.73966   ROW0156            -1.
    COL0282   ROW0103            -1.   ROW0157             1.
    COL0282   ROW0176            -1.
    COL0283   OBJ.FUNC      25.52453   ROW0157             1.
    COL0284   OBJ.FUNC      25.52453   ROW0157            -1.
    COL0285   ROW0040            -1.   ROW0158             1.
    COL0285   ROW0176            -1.
    COL0286   OBJ.FUNC       6.86248   ROW0158             1.
    COL0287   OBJ.FUNC       6.86248   ROW0158            -1.
    COL0288   ROW0041            -1.   ROW0159             1.
    COL0288   ROW0176            -1.
    COL0289   OBJ.FUNC       2.46633   ROW0159             1.
    COL0290   OBJ.FUNC       2.46633   ROW0159            -1.
    COL0291   ROW0042            -1.   ROW0160             1.
    COL0291   ROW0176            -1.
    COL0292   OBJ.FUNC      84.73141   ROW0160             1.
    COL0293   OBJ.FUNC      84.73141   ROW0160            -1.
    COL0294   ROW0043            -1.   ROW0161             1.
    COL0294   ROW0176            -1.
    COL0295   OBJ.FUNC       75.5287   ROW0161             1.
    COL0296   OBJ.FUNC       75.5287   ROW0161            -1.
    COL0297   ROW0047            -1.   ROW0162             1.
    COL0297   ROW0176            -1.
    COL0298   OBJ.FUNC      50.02001   ROW0162             1.
    COL0299   OBJ.FUNC      50.02001   ROW0162            -1.
    COL0300   ROW0048            -1.   ROW0163             1.
    COL0300   ROW0176            -1.
    COL0301   OBJ.FUNC      28.50952   ROW0163             1.
    COL0302   OBJ.FUNC      28.50952   ROW0163            -1.
    COL0303   ROW0049            -1.   ROW0164             1.
    COL0303   ROW0176            -1.
    COL0304   OBJ.FUNC      41.79903   ROW0164             1.
    COL0305   OBJ.FUNC      41.79903   ROW0164            -1.
    COL0306   ROW0165             1.   ROW0176            -1.
    COL0306   ROW0177            -1.
    COL0307   OBJ.FUNC      71.02273   ROW0165             1.
    COL0308   OBJ.FUNC      71.02273   ROW0165            -1.
    COL0309   ROW0050             1.   ROW0166             1.
    COL0309   ROW0176            -1.
    COL0310   OBJ.FUNC        3.4174   ROW0166             1.
    COL0311   OBJ.FUNC        3.4174   ROW0166            -1.
    COL0312   ROW0041         .95329   ROW0173            -1.
    COL0313   ROW0169             1.   ROW0173            -1.
    COL0314   OBJ.FUNC       72.7802   ROW0169             1.
    COL0315   OBJ.FUNC       72.7802   ROW0169            -1.
    COL0316   ROW0170             1.   ROW0173            -1.
    COL0317   OBJ.FUNC      27.82415   ROW0170             1.
    COL0318   OBJ.FUNC      27.82415   ROW0170            -1.
    COL0319   ROW0051            -1.   ROW0171             1.
    COL0319   ROW0173            -1.
    COL0320   OBJ.FUNC       7.62544   ROW0171             1.
    COL0321   OBJ.FUNC       7.62544   ROW0171            -1.
    COL0322   ROW0053            -1.   ROW0172             1.
    COL0322   ROW0173            -1.
    COL0323   OBJ.FUNC       2.49464   ROW0172             1.
    COL0324   OBJ.FUNC       2.49464   ROW0172            -1.
    COL0325   ROW0176         .97069   ROW0178       -1.11787
    COL0326   ROW0174            -1.   ROW0178             1.
    COL0327   ROW0060             1.   ROW0167             1.
    COL0327   ROW0178       -1.11787   ROW0179        -.12697
    COL0327   ROW0180        -.26642   ROW0181        -.10477
    COL0327   ROW0182        -.01157   ROW0183        -.19949
    COL0327   ROW0184        -.08032   ROW0185         .78954
    COL0328   OBJ.FUNC       3.95288   ROW0167             1.
    COL0329   OBJ.FUNC       3.95288   ROW0167            -1.
    COL0330   ROW0061             1.   ROW0179             1.
    COL0330   ROW0185            -1.
    COL0331   OBJ.FUNC      31.13325   ROW0179             1.
    COL0332   OBJ.FUNC      31.13325   ROW0179            -1.
    COL0333   ROW0110             1.   ROW0180             1.
    COL0333   ROW0185            -1.
    COL0334   OBJ.FUNC      14.83679   ROW0180             1.
    COL0335   OBJ.FUNC      14.83679   ROW0180            -1.
    COL0336   ROW0062             1.   ROW0181             1.
    COL0336   ROW0185            -1.
    COL0337   OBJ.FUNC      37.73016   ROW0181             1.
    COL0338   OBJ.FUNC      37.73016   ROW0181            -1.
    COL0339   ROW0111             1.   ROW0182             1.
    COL0339   ROW0185            -1.
    COL0340   OBJ.FUNC      341.5301   ROW0182             1.
    COL0341   OBJ.FUNC      341.5301   ROW0182            -1.
    COL0342   ROW0183             1.   ROW0185            -1.
    COL0342   ROW0186             1.
    COL0343   OBJ.FUNC      19.81532   ROW0183             1.
    COL0344   OBJ.FUNC      19.81532   ROW0183            -1.
    COL0345   ROW0184             1.   ROW0185            -1.
    COL0345   ROW0187             1.
    COL0346   OBJ.FUNC       49.2126   ROW0184             1.
    COL0347   OBJ.FUNC       49.2126   ROW0184            -1.
    COL0348   ROW0110        -.79548   ROW0188             1.
    COL0349   ROW0065             1.   ROW0175        -.80143
    COL0349   ROW0188         -.9588
    COL0350   ROW0074             1.   ROW0168             1.
    COL0350   ROW0178       -1.11787   ROW0189        -.09282
    COL0350   ROW0190        -.06059   ROW0191         -.5892
    COL0350   ROW0192         -.0519   ROW0193        -.12132
    COL0350   ROW0194         -.0337   ROW0195        -.04406
    COL0350   ROW0196         .99359
    COL0351   OBJ.FUNC       2.98116   ROW0168             1.
    COL0352   OBJ.FUNC       2.98116   ROW0168            -1.
    COL0353   ROW0075             1.   ROW0189             1.
    COL0353   ROW0196            -1.
    COL0354   OBJ.FUNC      32.11716   ROW0189             1.
    COL0355   OBJ.FUNC      32.11716   ROW0189            -1.
    COL0356   ROW0120             1.   ROW0190             1.
    COL0356   ROW0196            -1.
    COL0357   OBJ.FUNC      49.20291   ROW0190             1.
    COL0358   OBJ.FUNC      49.20291   ROW0190            -1.
    COL0359   ROW0076             1.   ROW0191             1.
    COL0359   ROW0196            -1.
    COL0360   OBJ.FUNC        5.0597   ROW0191             1.
    COL0361   OBJ.FUNC        5.0597   ROW0191            -1.
    COL0362   ROW0077             1.   ROW0192             1.
    COL0362   ROW0196            -1.
    COL0363   OBJ.FUNC      57.43826   ROW0192             1.
    COL0364   OBJ.FUNC      57.43826   ROW0192            -1.
    COL0365   ROW0193             1.   ROW0196            -1.
    COL0365   ROW0197             1.
    COL0366   OBJ.FUNC      24.57365   ROW0193             1.
    COL0367   OBJ.FUNC      24.57365   ROW0193            -1.
    COL0368   ROW0079             1.   ROW0194             1.
    COL0368   ROW0196            -1.
    COL0369   OBJ.FUNC      88.44862   ROW0194             1.
    COL0370   OBJ.FUNC      88.44862   ROW0194            -1.
    COL0371   ROW0081             1.   ROW0195             1.
    COL0371   ROW0196            -1.
    COL0372   OBJ.FUNC        67.659   ROW0195             1.
    COL0373   OBJ.FUNC        67.659   ROW0195            -1.
    COL0374   ROW0076         -.8939   ROW0198             1.
    COL0375   ROW0083             1.   ROW0175        -.80143
    COL0375   ROW0198            -1.
    COL0376   OBJ.FUNC        .37809   ROW0175             1.
    COL0377   OBJ.FUNC        .37809   ROW0175            -1.
    COL0378   ROW0174            -1.
    COL0379   ROW0006             1.   ROW0199        -.01882
    COL0379   ROW0200        -.15271   ROW0201        -.01342
    COL0379   ROW0202        -.01819   ROW0203        -.01938
    COL0379   ROW0204        -.00814   ROW0205        -.02237
    COL0379   ROW0206        -.01464   ROW0207        -.16843
    COL0379   ROW0208        -.07341   ROW0209        -.05351
    COL0379   ROW0210        -.01767   ROW0211        -.34666
    COL0379   ROW0212        -.14135   ROW0213        -.34916
    COL0379   ROW0214             1.   ROW0215             1.
    COL0379   ROW0216         .42494   ROW0217             1.
    COL0380   ROW0040            -1.   ROW0199             1.
    COL0380   ROW0218            -1.
    COL0381   OBJ.FUNC      36.41661   ROW0199             1.
    COL0382   OBJ.FUNC      36.41661   ROW0199            -1.
    COL0383   ROW0041            -1.   ROW0200             1.
    COL0383   ROW0218            -1.
    COL0384   OBJ.FUNC       4.48704   ROW0200             1.
    COL0385   OBJ.FUNC       4.48704   ROW0200            -1.
    COL0386   ROW0042            -1.   ROW0201             1.
    COL0386   ROW0218            -1.
    COL0387   OBJ.FUNC      51.07252   ROW0201             1.
    COL0388   OBJ.FUNC      51.07252   ROW0201            -1.
    COL0389   ROW0043            -1.   ROW0202             1.
    COL0389   ROW0218            -1.
    COL0390   OBJ.FUNC      37.66762   ROW0202             1.
    COL0391   OBJ.FUNC      37.66762   ROW0202            -1.
    COL0392   ROW0044            -1.   ROW0203             1.
    COL0392   ROW0218            -1.
    COL0393   OBJ.FUNC      35.35068   ROW0203             1.
    COL0394   OBJ.FUNC      35.35068   ROW0203            -1.
    COL0395   ROW0046            -1.   ROW0204             1.
    COL0395   ROW0218            -1.
    COL0396   OBJ.FUNC      84.14675   ROW0204             1.
    COL0397   OBJ.FUNC      84.14675   ROW0204            -1.
    COL0398   ROW0047            -1.   ROW0205             1.
    COL0398   ROW0218            -1.
    COL0399   OBJ.FUNC      30.62975   ROW0205             1.
    COL0400   OBJ.FUNC      30.62975   ROW0205            -1.
    COL0401   ROW0177            -1.   ROW0206             1.
    COL0401   ROW0218            -1.
    COL0402   OBJ.FUNC      46.80333   ROW0206             1.
    COL0403   OBJ.FUNC      46.80333   ROW0206            -1.
    COL0404   ROW0050             1.   ROW0207             1.
    COL0404   ROW0218            -1.
    COL0405   OBJ.FUNC       4.06815   ROW0207             1.
    COL0406   OBJ.FUNC       4.06815   ROW0207            -1.
    COL0407   ROW0042         .89731   ROW0214            -1.
    COL0408   ROW0210             1.   ROW0214            -1.
    COL0409   OBJ.FUNC      38.78374   ROW0210             1.
    COL0410   OBJ.FUNC      38.78374   ROW0210            -1.
    COL0411   ROW0211             1.   ROW0214            -1.
    COL0412   OBJ.FUNC        1.9766   ROW0211             1.
    COL0413   OBJ.FUNC        1.9766   ROW0211            -1.
    COL0414   ROW0051            -1.   ROW0212             1.
    COL0414   ROW0214            -1.   ROW0219             1.
    COL0415   OBJ.FUNC       1.96247   ROW0212             1.
    COL0416   OBJ.FUNC       1.96247   ROW0212            -1.
    COL0417   ROW0053            -1.   ROW0213             1.
    COL0417   ROW0214            -1.   ROW0220             1.
    COL0418   OBJ.FUNC       4.84759   ROW0213             1.
    COL0419   OBJ.FUNC       4.84759   ROW0213            -1.
    COL0420   ROW0218         .90034   ROW0221       -1.03324
    COL0421   ROW0215            -1.   ROW0221             1.
    COL0422   ROW0060             1.   ROW0208             1.
    COL0422   ROW0221       -1.03324   ROW0222        -.13629
    COL0422   ROW0223        -.57256   ROW0224        -.02643
    COL0422   ROW0225        -.03224   ROW0226        -.07583
    COL0422   ROW0227        -.05671   ROW0228         .90006
    COL0423   OBJ.FUNC       9.33358   ROW0208             1.
    COL0424   OBJ.FUNC       9.33358   ROW0208            -1.
    COL0425   ROW0110             1.   ROW0222             1.
    COL0425   ROW0228            -1.
    COL0426   OBJ.FUNC      68.48377   ROW0222             1.
    COL0427   OBJ.FUNC      68.48377   ROW0222            -1.
    COL0428   ROW0062             1.   ROW0223             1.
    COL0428   ROW0228            -1.
    COL0429   OBJ.FUNC      16.30151   ROW0223             1.
    COL0430   OBJ.FUNC      16.30151   ROW0223            -1.
    COL0431   ROW0224             1.   ROW0228            -1.
    COL0431   ROW0229             1.
    COL0432   OBJ.FUNC      353.1073   ROW0224             1.
    COL0433   OBJ.FUNC      353.1073   ROW0224            -1.
    COL0434   ROW0146             1.   ROW0225             1.
    COL0434   ROW0228            -1.
    COL0435   OBJ.FUNC      289.5194   ROW0225             1.
    COL0436   OBJ.FUNC      289.5194   ROW0225            -1.
    COL0437   ROW0111             1.   ROW0226             1.
    COL0437   ROW0228            -1.
    COL0438   OBJ.FUNC      123.0921   ROW0226             1.
    COL0439   OBJ.FUNC      123.0921   ROW0226            -1.
    COL0440   ROW0187             1.   ROW0227             1.
    COL0440   ROW0228            -1.
    COL0441   OBJ.FUNC       164.582   ROW0227             1.
    COL0442   OBJ.FUNC       164.582   ROW0227            -1.
    COL0443   ROW0062        -.68157   ROW0230             1.
    COL0444   ROW0065             1.   ROW0216        -.57506
    COL0444   ROW0230        -.61367
    COL0445   ROW0074             1.   ROW0209             1.
    COL0445   ROW0221       -1.03324   ROW0231        -.16435
    COL0445   ROW0232        -.57117   ROW0233        -.02369
    COL0445   ROW0234        -.00814   ROW0235        -.06169
    COL0445   ROW0236        -.08374   ROW0237         .91278
    COL0446   OBJ.FUNC       12.8041   ROW0209             1.
    COL0447   OBJ.FUNC       12.8041   ROW0209            -1.
    COL0448   ROW0076             1.   ROW0231             1.
    COL0448   ROW0237            -1.
    COL0449   OBJ.FUNC      77.90589   ROW0231             1.
    COL0450   OBJ.FUNC      77.90589   ROW0231            -1.
    COL0451   ROW0077             1.   ROW0232             1.
    COL0451   ROW0237            -1.
    COL0452   OBJ.FUNC      22.41751   ROW0232             1.
    COL0453   OBJ.FUNC      22.41751   ROW0232            -1.
    COL0454   ROW0078             1.   ROW0233             1.
    COL0454   ROW0237            -1.
    COL0455   OBJ.FUNC      540.5405   ROW0233             1.
    COL0456   OBJ.FUNC      540.5405   ROW0233            -1.
    COL0457   ROW0234             1.   ROW0237            -1.
    COL0457   ROW0238             1.
    COL0458   OBJ.FUNC      1572.327   ROW0234             1.
    COL0459   OBJ.FUNC      1572.327   ROW0234            -1.
    COL0460   ROW0079             1.   ROW0235             1.
    COL0460   ROW0237            -1.
    COL0461   OBJ.FUNC       207.555   ROW0235             1.
    COL0462   OBJ.FUNC       207.555   ROW0235            -1.
    COL0463   ROW0081             1.   ROW0236             1.
    COL0463   ROW0237            -1.
    COL0464   OBJ.FUNC      152.9052   ROW0236             1.
    COL0465   OBJ.FUNC      152.9052   ROW0236            -1.
    COL0466   ROW0077        -.47325   ROW0239             1.
    COL0467   ROW0083             1.   ROW0216        -.57506
    COL0467   ROW0239        -.63508
    COL0468   OBJ.FUNC        .39404   ROW0216             1.
    COL0469   OBJ.FUNC        .39404   ROW0216            -1.
    COL0470   ROW0215            -1.   ROW0240             1.
    COL0471   ROW0007             1.   ROW0217             1.
    COL0471   ROW0241        -.00804   ROW0242        -.01781
    COL0471   ROW0243        -.09754   ROW0244        -.02435
    COL0471   ROW0245        -.13436   ROW0246        -.03068
    COL0471   ROW0247        -.00645   ROW0248        -.03079
    COL0471   ROW0249        -.02456   ROW0250        -.14802
    COL0471   ROW0251        -.08566   ROW0252        -.05969
    COL0471   ROW0253        -.02111   ROW0254        -.05315
    COL0471   ROW0255        -.11731   ROW0256        -.49031
    COL0471   ROW0257             1.   ROW0258             1.
    COL0471   ROW0259         .22695
    COL0472   ROW0038            -1.   ROW0241             1.
    COL0472   ROW0260            -1.
    COL0473   OBJ.FUNC      70.33337   ROW0241             1.
    COL0474   OBJ.FUNC      70.33337   ROW0241            -1.
    COL0475   ROW0040            -1.   ROW0242             1.
    COL0475   ROW0260            -1.
    COL0476   OBJ.FUNC      31.77226   ROW0242             1.
    COL0477   OBJ.FUNC      31.77226   ROW0242            -1.
    COL0478   ROW0041            -1.   ROW0243             1.
    COL0478   ROW0260            -1.
    COL0479   OBJ.FUNC       5.80067   ROW0243             1.
    COL0480   OBJ.FUNC       5.80067   ROW0243            -1.
    COL0481   ROW0042            -1.   ROW0244             1.
    COL0481   ROW0260            -1.
    COL0482   OBJ.FUNC      23.23528   ROW0244             1.
    COL0483   OBJ.FUNC      23.23528   ROW0244            -1.
    COL0484   ROW0043            -1.   ROW0245             1.
    COL0484   ROW0260            -1.
    COL0485   OBJ.FUNC       4.21109   ROW0245             1.
    COL0486   OBJ.FUNC       4.21109   ROW0245            -1.
    COL0487   ROW0044            -1.   ROW0246             1.
    COL0487   ROW0260            -1.
    COL0488   OBJ.FUNC      18.44134   ROW0246             1.
    COL0489   OBJ.FUNC      18.44134   ROW0246            -1.
    COL0490   ROW0046            -1.   ROW0247             1.
    COL0490   ROW0260            -1.
    COL0491   OBJ.FUNC      87.73469   ROW0247             1.
    COL0492   OBJ.FUNC      87.73469   ROW0247            -1.
    COL0493   ROW0047            -1.   ROW0248             1.
    COL0493   ROW0260            -1.
    COL0494   OBJ.FUNC      18.37627   ROW0248             1.
    COL0495   OBJ.FUNC      18.37627   ROW0248            -1.
    COL0496   ROW0177            -1.   ROW0249             1.
    COL0496   ROW0260            -1.
    COL0497   OBJ.FUNC      23.03723   ROW0249             1.
    COL0498   OBJ.FUNC      23.03723   ROW0249            -1.
    COL0499   ROW0050             1.   ROW0250             1.
    COL0499   ROW0260            -1.
    COL0500   OBJ.FUNC       3.82272   ROW0250             1.
    COL0501   OBJ.FUNC       3.82272   ROW0250            -1.
    COL0502   ROW0043         .90919   ROW0257            -1.
    COL0503   ROW0253             1.   ROW0257            -1.
    COL0504   OBJ.FUNC      26.79959   ROW0253             1.
    COL0505   OBJ.FUNC      26.79959   ROW0253            -1.
    COL0506   ROW0254             1.   ROW0257            -1.
    COL0507   OBJ.FUNC      10.64509   ROW0254             1.
    COL0508   OBJ.FUNC      10.64509   ROW0254            -1.
    COL0509   ROW0051            -1.   ROW0219             1.
    COL0509   ROW0255             1.   ROW0257            -1.
    COL0510   OBJ.FUNC       1.15402   ROW0255             1.
    COL0511   OBJ.FUNC       1.15402   ROW0255            -1.
    COL0512   ROW0053            -1.   ROW0220             1.
    COL0512   ROW0256             1.   ROW0257            -1.
    COL0513   OBJ.FUNC       4.82314   ROW0256             1.
    COL0514   OBJ.FUNC       4.82314   ROW0256            -1.
    COL0515   ROW0260         .93734   ROW0261       -1.03192
    COL0516   ROW0258            -1.   ROW0261             1.
    COL0517   ROW0060             1.   ROW0251             1.
    COL0517   ROW0261       -1.03192   ROW0262         -.1257
    COL0517   ROW0263        -.13622   ROW0264        -.46724
    COL0517   ROW0265        -.02231   ROW0266        -.03955
    COL0517   ROW0267        -.04497   ROW0268        -.09818
    COL0517   ROW0269        -.04907   ROW0270         .98325
    COL0518   OBJ.FUNC       6.60546   ROW0251             1.
    COL0519   OBJ.FUNC       6.60546   ROW0251            -1.
    COL0520   ROW0110             1.   ROW0262             1.
    COL0520   ROW0270            -1.
    COL0521   OBJ.FUNC      52.54861   ROW0262             1.
    COL0522   OBJ.FUNC      52.54861   ROW0262            -1.
    COL0523   ROW0062             1.   ROW0263             1.
    COL0523   ROW0270            -1.
    COL0524   OBJ.FUNC       48.4919   ROW0263             1.
    COL0525   OBJ.FUNC       48.4919   ROW0263            -1.
    COL0526   ROW0264             1.   ROW0270            -1.
    COL0526   ROW0271             1.
    COL0527   OBJ.FUNC      14.13707   ROW0264             1.
    COL0528   OBJ.FUNC      14.13707   ROW0264            -1.
    COL0529   ROW0229             1.   ROW0265             1.
    COL0529   ROW0270            -1.
    COL0530   OBJ.FUNC      296.0332   ROW0265             1.
    COL0531   OBJ.FUNC      296.0332   ROW0265            -1.
    COL0532   ROW0146             1.   ROW0266             1.
    COL0532   ROW0270            -1.
    COL0533   OBJ.FUNC      167.0007   ROW0266             1.
    COL0534   OBJ.FUNC      167.0007   ROW0266            -1.
    COL0535   ROW0111             1.   ROW0267             1.
    COL0535   ROW0270            -1.
    COL0536   OBJ.FUNC       146.886   ROW0267             1.
    COL0537   OBJ.FUNC       146.886   ROW0267            -1.
    COL0538   ROW0063             1.   ROW0268             1.
    COL0538   ROW0270            -1.
    COL0539   OBJ.FUNC      67.27664   ROW0268             1.
    COL0540   OBJ.FUNC      67.27664   ROW0268            -1.
    COL0541   ROW0187             1.   ROW0269             1.
    COL0541   ROW0270            -1.
    COL0542   OBJ.FUNC      134.6257   ROW0269             1.
    COL0543   OBJ.FUNC      134.6257   ROW0269            -1.
    COL0544   ROW0271         -.6866   ROW0272             1.
    COL0545   ROW0065             1.   ROW0259        -.77305
    COL0545   ROW0272        -.74486
    COL0546   ROW0074             1.   ROW0252             1.
    COL0546   ROW0261       -1.03192   ROW0273        -.13158
    COL0546   ROW0274        -.17371   ROW0275         -.3993
    COL0546   ROW0276         -.0547   ROW0277        -.00339
    COL0546   ROW0278        -.15578   ROW0279        -.04573
    COL0546   ROW0280          .9642
    COL0547   OBJ.FUNC       9.48011   ROW0252             1.
    COL0548   OBJ.FUNC       9.48011   ROW0252            -1.
    COL0549   ROW0076             1.   ROW0273             1.
    COL0549   ROW0280            -1.
    COL0550   OBJ.FUNC      72.04611   ROW0273             1.
    COL0551   OBJ.FUNC      72.04611   ROW0273            -1.
    COL0552   ROW0077             1.   ROW0274             1.
    COL0552   ROW0280            -1.
    COL0553   OBJ.FUNC      54.57324   ROW0274             1.
    COL0554   OBJ.FUNC      54.57324   ROW0274            -1.
    COL0555   ROW0275             1.   ROW0280            -1.
    COL0555   ROW0281             1.
    COL0556   OBJ.FUNC      23.74169   ROW0275             1.
    COL0557   OBJ.FUNC      23.74169   ROW0275            -1.
    COL0558   ROW0078             1.   ROW0276             1.
    COL0558   ROW0280            -1.
    COL0559   OBJ.FUNC      173.3102   ROW0276             1.
    COL0560   OBJ.FUNC      173.3102   ROW0276            -1.
    COL0561   ROW0238             1.   ROW0277             1.
    COL0561   ROW0280            -1.
    COL0562   OBJ.FUNC      2793.296   ROW0277             1.
    COL0563   OBJ.FUNC      2793.296   ROW0277            -1.
    COL0564   ROW0079             1.   ROW0278             1.
    COL0564   ROW0280            -1.
    COL0565   OBJ.FUNC      60.85686   ROW0278             1.
    COL0566   OBJ.FUNC      60.85686   ROW0278            -1.
    COL0567   ROW0081             1.   ROW0279             1.
    COL0567   ROW0280            -1.
    COL0568   OBJ.FUNC      207.2968   ROW0279             1.
    COL0569   OBJ.FUNC      207.2968   ROW0279            -1.
    COL0570   ROW0281        -.30604   ROW0282             1.
    COL0571   ROW0083             1.   ROW0259        -.77305
    COL0571   ROW0282         -.3982
    COL0572   OBJ.FUNC        .43741   ROW0259             1.
    COL0573   OBJ.FUNC        .43741   ROW0259            -1.
    COL0574   ROW0240             1.   ROW0258            -1.
    COL0575   ROW0008             1.   ROW0217             1.
    COL0575   ROW0283        -.01986   ROW0284        -.15529
    COL0575   ROW0285        -.07166   ROW0286        -.03313
    COL0575   ROW0287        -.00864   ROW0288        -.03807
    COL0575   ROW0289        -.03865   ROW0290        -.16492
    COL0575   ROW0291        -.09385   ROW0292        -.03971
    COL0575   ROW0293        -.09757   ROW0294        -.07191
    COL0575   ROW0295        -.13347   ROW0296        -.16817
    COL0575   ROW0297             1.   ROW0298             1.
    COL0575   ROW0299         .15158
    COL0576   ROW0040            -1.   ROW0283             1.
    COL0576   ROW0300            -1.
    COL0577   OBJ.FUNC      60.64281   ROW0283             1.
    COL0578   OBJ.FUNC      60.64281   ROW0283            -1.
    COL0579   ROW0041            -1.   ROW0284             1.
    COL0579   ROW0300            -1.
    COL0580   OBJ.FUNC        7.7541   ROW0284             1.
    COL0581   OBJ.FUNC        7.7541   ROW0284            -1.
    COL0582   ROW0044            -1.   ROW0285             1.
    COL0582   ROW0300            -1.
    COL0583   OBJ.FUNC      16.80333   ROW0285             1.
    COL0584   OBJ.FUNC      16.80333   ROW0285            -1.
    COL0585   ROW0045            -1.   ROW0286             1.
    COL0585   ROW0300            -1.
    COL0586   OBJ.FUNC      36.34513   ROW0286             1.
    COL0587   OBJ.FUNC      36.34513   ROW0286            -1.
    COL0588   ROW0046            -1.   ROW0287             1.
    COL0588   ROW0300            -1.
    COL0589   OBJ.FUNC      139.4311   ROW0287             1.
    COL0590   OBJ.FUNC      139.4311   ROW0287            -1.
    COL0591   ROW0047            -1.   ROW0288             1.
    COL0591   ROW0300            -1.
    COL0592   OBJ.FUNC      31.63156   ROW0288             1.
    COL0593   OBJ.FUNC      31.63156   ROW0288            -1.
    COL0594   ROW0049            -1.   ROW0289             1.
    COL0594   ROW0300            -1.
    COL0595   OBJ.FUNC      31.15847   ROW0289             1.
    COL0596   OBJ.FUNC      31.15847   ROW0289            -1.
    COL0597   ROW0050             1.   ROW0290             1.
    COL0597   ROW0300            -1.
    COL0598   OBJ.FUNC       7.30119   ROW0290             1.
    COL0599   OBJ.FUNC       7.30119   ROW0290            -1.
    COL0600   ROW0044         .92888   ROW0297            -1.
    COL0601   ROW0293             1.   ROW0297            -1.
    COL0602   OBJ.FUNC       12.3408   ROW0293             1.
    COL0603   OBJ.FUNC       12.3408   ROW0293            -1.
    COL0604   ROW0294             1.   ROW0297            -1.
    COL0605   OBJ.FUNC      16.74425   ROW0294             1.
    COL0606   OBJ.FUNC      16.74425   ROW0294            -1.
    COL0607   ROW0051            -1.   ROW0219             1.
    COL0607   ROW0295             1.   ROW0297            -1.
    COL0608   OBJ.FUNC       7.16025   ROW0295             1.
    COL0609   OBJ.FUNC       7.16025   ROW0295            -1.
    COL0610   ROW0053            -1.   ROW0220             1.
    COL0610   ROW0296             1.   ROW0297            -1.
    COL0611   OBJ.FUNC       9.02201   ROW0296             1.
    COL0612   OBJ.FUNC       9.02201   ROW0296            -1.
    COL0613   ROW0300         .91239   ROW0301       -1.02342
    COL0614   ROW0298            -1.   ROW0301             1.
    COL0615   ROW0060             1.   ROW0291             1.
    COL0615   ROW0301       -1.02342   ROW0302        -.16595
    COL0615   ROW0303        -.09913   ROW0304        -.25821
    COL0615   ROW0305        -.07747   ROW0306        -.03634
    COL0615   ROW0307         -.2638   ROW0308          .9009
    COL0616   OBJ.FUNC      12.83071   ROW0291             1.
    COL0617   OBJ.FUNC      12.83071   ROW0291            -1.
    COL0618   ROW0110             1.   ROW0302             1.
    COL0618   ROW0308            -1.
    COL0619   OBJ.FUNC       77.3156   ROW0302             1.
    COL0620   OBJ.FUNC       77.3156   ROW0302            -1.
    COL0621   ROW0062             1.   ROW0303             1.
    COL0621   ROW0308            -1.
    COL0622   OBJ.FUNC      129.4331   ROW0303             1.
    COL0623   OBJ.FUNC      129.4331   ROW0303            -1.
    COL0624   ROW0229             1.   ROW0304             1.
    COL0624   ROW0308            -1.
    COL0625   OBJ.FUNC      49.69191   ROW0304             1.
    COL0626   OBJ.FUNC      49.69191   ROW0304            -1.
    COL0627   ROW0146             1.   ROW0305             1.
    COL0627   ROW0308            -1.
    COL0628   OBJ.FUNC      165.6178   ROW0305             1.
    COL0629   OBJ.FUNC      165.6178   ROW0305            -1.
    COL0630   ROW0111             1.   ROW0306             1.
    COL0630   ROW0308            -1.
    COL0631   OBJ.FUNC      353.1073   ROW0306             1.
    COL0632   OBJ.FUNC      353.1073   ROW0306            -1.
    COL0633   ROW0063             1.   ROW0307             1.
    COL0633   ROW0308            -1.
    COL0634   OBJ.FUNC      48.63813   ROW0307             1.
    COL0635   OBJ.FUNC      48.63813   ROW0307            -1.
    COL0636   ROW0229        -.53132   ROW0309             1.
    COL0637   ROW0065             1.   ROW0299        -.84842
    COL0637   ROW0309        -.78628
    COL0638   ROW0074             1.   ROW0292             1.
    COL0638   ROW0301       -1.02342   ROW0310        -.14519
    COL0638   ROW0311         -.3264   ROW0312        -.22627
    COL0638   ROW0313        -.09606   ROW0314        -.08539
    COL0638   ROW0315         .87931
    COL0639   OBJ.FUNC      30.32325   ROW0292             1.
    COL0640   OBJ.FUNC      30.32325   ROW0292            -1.
    COL0641   ROW0076             1.   ROW0310             1.
    COL0641   ROW0315            -1.
    COL0642   OBJ.FUNC      208.8555   ROW0310             1.
    COL0643   OBJ.FUNC      208.8555   ROW0310            -1.
    COL0644   ROW0077             1.   ROW0311             1.
    COL0644   ROW0315            -1.
    COL0645   OBJ.FUNC      92.90227   ROW0311             1.
    COL0646   OBJ.FUNC      92.90227   ROW0311            -1.
    COL0647   ROW0078             1.   ROW0312             1.
    COL0647   ROW0315            -1.
    COL0648   OBJ.FUNC      134.0123   ROW0312             1.
    COL0649   OBJ.FUNC      134.0123   ROW0312            -1.
    COL0650   ROW0079             1.   ROW0313             1.
    COL0650   ROW0315            -1.
    COL0651   OBJ.FUNC      315.6566   ROW0313             1.
    COL0652   OBJ.FUNC      315.6566   ROW0313            -1.
    COL0653   ROW0081             1.   ROW0314             1.
    COL0653   ROW0315            -1.
    COL0654   OBJ.FUNC      355.1136   ROW0314             1.
    COL0655   OBJ.FUNC      355.1136   ROW0314            -1.
    COL0656   ROW0078        -.59918   ROW0316             1.
    COL0657   ROW0083             1.   ROW0299        -.84842
    COL0657   ROW0316        -.49026
    COL0658   OBJ.FUNC       1.02161   ROW0299             1.
    COL0659   OBJ.FUNC       1.02161   ROW0299            -1.
    COL0660   ROW0240             1.   ROW0298            -1.
    COL0661   ROW0009             1.   ROW0217             1.
    COL0661   ROW0317        -.01572   ROW0318        -.02015
    COL0661   ROW0319         -.0169   ROW0320        -.07813
    COL0661   ROW0321        -.01673   ROW0322        -.01916
    COL0661   ROW0323        -.01298   ROW0324        -.12589
    COL0661   ROW0325        -.12535   ROW0326        -.06215
    COL0661   ROW0327        -.08937   ROW0328        -.03607
    COL0661   ROW0329         -.1686   ROW0330        -.44043
    COL0661   ROW0331             1.   ROW0332             1.
    COL0661   ROW0333         .25779
    COL0662   ROW0040            -1.   ROW0317             1.
    COL0662   ROW0334            -1.
    COL0663   OBJ.FUNC      58.34306   ROW0317             1.
    COL0664   OBJ.FUNC      58.34306   ROW0317            -1.
    COL0665   ROW0041            -1.   ROW0318             1.
    COL0665   ROW0334            -1.
    COL0666   OBJ.FUNC      45.51247   ROW0318             1.
    COL0667   OBJ.FUNC      45.51247   ROW0318            -1.
    COL0668   ROW0044            -1.   ROW0319             1.
    COL0668   ROW0334            -1.
    COL0669   OBJ.FUNC      54.25936   ROW0319             1.
    COL0670   OBJ.FUNC      54.25936   ROW0319            -1.
    COL0671   ROW0045            -1.   ROW0320             1.
    COL0671   ROW0334            -1.
    COL0672   OBJ.FUNC      11.73599   ROW0320             1.
    COL0673   OBJ.FUNC      11.73599   ROW0320            -1.
    COL0674   ROW0046            -1.   ROW0321             1.
    COL0674   ROW0334            -1.
    COL0675   OBJ.FUNC      54.81254   ROW0321             1.
    COL0676   OBJ.FUNC      54.81254   ROW0321            -1.
    COL0677   ROW0047            -1.   ROW0322             1.
    COL0677   ROW0334            -1.
    COL0678   OBJ.FUNC      47.84689   ROW0322             1.
    COL0679   OBJ.FUNC      47.84689   ROW0322            -1.
    COL0680   ROW0049            -1.   ROW0323             1.
    COL0680   ROW0334            -1.
    COL0681   OBJ.FUNC      70.64143   ROW0323             1.
    COL0682   OBJ.FUNC      70.64143   ROW0323            -1.
    COL0683   ROW0050             1.   ROW0324             1.
    COL0683   ROW0334            -1.
    COL0684   OBJ.FUNC       7.28343   ROW0324             1.
    COL0685   OBJ.FUNC       7.28343   ROW0324            -1.
    COL0686   ROW0045         .90078   ROW0331            -1.
    COL0687   ROW0327             1.   ROW0331            -1.
    COL0688   OBJ.FUNC      10.25978   ROW0327             1.
    COL0689   OBJ.FUNC      10.25978   ROW0327            -1.
    COL0690   ROW0328             1.   ROW0331            -1.
    COL0691   OBJ.FUNC       25.4233   ROW0328             1.
    COL0692   OBJ.FUNC       25.4233   ROW0328            -1.
    COL0693   ROW0051            -1.   ROW0219             1.
    COL0693   ROW0329             1.   ROW0331            -1.
    COL0694   OBJ.FUNC       2.08182   ROW0329             1.
    COL0695   OBJ.FUNC       2.08182   ROW0329            -1.
    COL0696   ROW0053            -1.   ROW0220             1.
    COL0696   ROW0330             1.   ROW0331            -1.
    COL0697   OBJ.FUNC       5.43845   ROW0330             1.
    COL0698   OBJ.FUNC       5.43845   ROW0330            -1.
    COL0699   ROW0334         .88333   ROW0335       -1.04379
    COL0700   ROW0332            -1.   ROW0335             1.
    COL0701   ROW0060             1.   ROW0325             1.
    COL0701   ROW0335       -1.04379   ROW0336        -.15557
    COL0701   ROW0337        -.02436   ROW0338        -.54033
    COL0701   ROW0339        -.05071   ROW0340        -.02035
    COL0701   ROW0341        -.07426   ROW0342         -.0706
    COL0701   ROW0343         .93618
    COL0702   OBJ.FUNC       7.31497   ROW0325             1.
    COL0703   OBJ.FUNC       7.31497   ROW0325            -1.
    COL0704   ROW0110             1.   ROW0336             1.
    COL0704   ROW0343            -1.
    COL0705   OBJ.FUNC      47.01899   ROW0336             1.
    COL0706   OBJ.FUNC      47.01899   ROW0336            -1.
    COL0707   ROW0229             1.   ROW0337             1.
    COL0707   ROW0343            -1.
    COL0708   OBJ.FUNC      300.3003   ROW0337             1.
    COL0709   OBJ.FUNC      300.3003   ROW0337            -1.
    COL0710   ROW0338             1.   ROW0343            -1.
    COL0710   ROW0344             1.
    COL0711   OBJ.FUNC      13.53803   ROW0338             1.
    COL0712   OBJ.FUNC      13.53803   ROW0338            -1.
    COL0713   ROW0146             1.   ROW0339             1.
    COL0713   ROW0343            -1.
    COL0714   OBJ.FUNC      144.2585   ROW0339             1.
    COL0715   OBJ.FUNC      144.2585   ROW0339            -1.
    COL0716   ROW0111             1.   ROW0340             1.
    COL0716   ROW0343            -1.
    COL0717   OBJ.FUNC      359.4536   ROW0340             1.
    COL0718   OBJ.FUNC      359.4536   ROW0340            -1.
    COL0719   ROW0063             1.   ROW0341             1.
    COL0719   ROW0343            -1.
    COL0720   OBJ.FUNC      98.50275   ROW0341             1.
    COL0721   OBJ.FUNC      98.50275   ROW0341            -1.
    COL0722   ROW0187             1.   ROW0342             1.
    COL0722   ROW0343            -1.
    COL0723   OBJ.FUNC      103.6055   ROW0342             1.
    COL0724   OBJ.FUNC      103.6055   ROW0342            -1.
    COL0725   ROW0344         -.9562   ROW0345             1.
    COL0726   ROW0065             1.   ROW0333        -.74221
    COL0726   ROW0345        -.69536
    COL0727   ROW0074             1.   ROW0326             1.
    COL0727   ROW0335       -1.04379   ROW0346        -.04659
    COL0727   ROW0347         -.0226   ROW0348        -.59264
    COL0727   ROW0349        -.15821   ROW0350        -.03992
    COL0727   ROW0351        -.06261   ROW0352         .92258
    COL0728   OBJ.FUNC      14.75318   ROW0326             1.
    COL0729   OBJ.FUNC      14.75318   ROW0326            -1.
    COL0730   ROW0076             1.   ROW0346             1.
    COL0730   ROW0352            -1.
    COL0731   OBJ.FUNC      316.6561   ROW0346             1.
    COL0732   OBJ.FUNC      316.6561   ROW0346            -1.
    COL0733   ROW0078             1.   ROW0347             1.
    COL0733   ROW0352            -1.
    COL0734   OBJ.FUNC      652.7415   ROW0347             1.
    COL0735   OBJ.FUNC      652.7415   ROW0347            -1.
    COL0736   ROW0348             1.   ROW0352            -1.
    COL0736   ROW0353             1.
    COL0737   OBJ.FUNC       24.8942   ROW0348             1.
    COL0738   OBJ.FUNC       24.8942   ROW0348            -1.
    COL0739   ROW0119             1.   ROW0349             1.
    COL0739   ROW0352            -1.
    COL0740   OBJ.FUNC      93.24879   ROW0349             1.
    COL0741   OBJ.FUNC      93.24879   ROW0349            -1.
    COL0742   ROW0079             1.   ROW0350             1.
    COL0742   ROW0352            -1.
    COL0743   OBJ.FUNC      369.5491   ROW0350             1.
    COL0744   OBJ.FUNC      369.5491   ROW0350            -1.
    COL0745   ROW0081             1.   ROW0351             1.
    COL0745   ROW0352            -1.
    COL0746   OBJ.FUNC      235.6268   ROW0351             1.
    COL0747   OBJ.FUNC      235.6268   ROW0351            -1.
    COL0748   ROW0353        -.18135   ROW0354             1.
    COL0749   ROW0083             1.   ROW0333        -.74221
    COL0749   ROW0354        -.91056
    COL0750   OBJ.FUNC        .68054   ROW0333             1.
    COL0751   OBJ.FUNC        .68054   ROW0333            -1.
    COL0752   ROW0240             1.   ROW0332            -1.
    COL0753   ROW0010             1.   ROW0217             1.
    COL0753   ROW0355        -.03503   ROW0356        -.01579
    COL0753   ROW0357         -.0571   ROW0358        -.03608
    COL0753   ROW0359        -.03363   ROW0360        -.01327
    COL0753   ROW0361        -.02186   ROW0362        -.14663
    COL0753   ROW0363        -.08297   ROW0364        -.03532
    COL0753   ROW0365        -.03429   ROW0366        -.21717
    COL0753   ROW0367        -.11572   ROW0368        -.42778
    COL0753   ROW0369             1.   ROW0370             1.
    COL0753   ROW0371         .32177
    COL0754   ROW0041            -1.   ROW0355             1.
    COL0754   ROW0372            -1.
    COL0755   OBJ.FUNC      48.62867   ROW0355             1.
    COL0756   OBJ.FUNC      48.62867   ROW0355            -1.
    COL0757   ROW0044            -1.   ROW0356             1.
    COL0757   ROW0372            -1.
    COL0758   OBJ.FUNC      107.8981   ROW0356             1.
    COL0759   OBJ.FUNC      107.8981   ROW0356            -1.
    COL0760   ROW0045            -1.   ROW0357             1.
    COL0760   ROW0372            -1.
    COL0761   OBJ.FUNC      29.83828   ROW0357             1.
    COL0762   OBJ.FUNC      29.83828   ROW0357            -1.
    COL0763   ROW0046            -1.   ROW0358             1.
    COL0763   ROW0372            -1.
    COL0764   OBJ.FUNC      47.21881   ROW0358             1.
    COL0765   OBJ.FUNC      47.21881   ROW0358            -1.
    COL0766   ROW0047            -1.   ROW0359             1.
    COL0766   ROW0372            -1.
    COL0767   OBJ.FUNC      50.66369   ROW0359             1.
    COL0768   OBJ.FUNC      50.66369   ROW0359            -1.
    COL0769   ROW0049            -1.   ROW0360             1.
    COL0769   ROW0372            -1.
    COL0770   OBJ.FUNC      128.3697   ROW0360             1.
    COL0771   OBJ.FUNC      128.3697   ROW0360            -1.
    COL0772   ROW0177            -1.   ROW0361             1.
    COL0772   ROW0372            -1.
    COL0773   OBJ.FUNC      77.93018   ROW0361             1.
    COL0774   OBJ.FUNC      77.93018   ROW0361            -1.
    COL0775   ROW0050             1.   ROW0362             1.
    COL0775   ROW0372            -1.
    COL0776   OBJ.FUNC      11.61872   ROW0362             1.
    COL0777   OBJ.FUNC      11.61872   ROW0362            -1.
    COL0778   ROW0046         .88949   ROW0369            -1.
    COL0779   ROW0365             1.   ROW0369            -1.
    COL0780   OBJ.FUNC      49.68697   ROW0365             1.
    COL0781   OBJ.FUNC      49.68697   ROW0365            -1.
    COL0782   ROW0366             1.   ROW0369            -1.
    COL0783   OBJ.FUNC       7.84461   ROW0366             1.
    COL0784   OBJ.FUNC       7.84461   ROW0366            -1.
    COL0785   ROW0051            -1.   ROW0219             1.
    COL0785   ROW0367             1.   ROW0369            -1.
    COL0786   OBJ.FUNC       3.98254   ROW0367             1.
    COL0787   OBJ.FUNC       3.98254   ROW0367            -1.
    COL0788   ROW0053            -1.   ROW0220             1.
    COL0788   ROW0368             1.   ROW0369            -1.
    COL0789   OBJ.FUNC      14.72277   ROW0368             1.
    COL0790   OBJ.FUNC      14.72277   ROW0368            -1.
    COL0791   ROW0372         .87944   ROW0373       -1.01526
    COL0792   ROW0370            -1.   ROW0373             1.
    COL0793   ROW0060             1.   ROW0363             1.
    COL0793   ROW0373       -1.01526   ROW0374        -.07252
    COL0793   ROW0375        -.07753   ROW0376        -.08878
    COL0793   ROW0377         -.5015   ROW0378        -.06275
    COL0793   ROW0379        -.08016   ROW0380         .88325
    COL0794   OBJ.FUNC      20.53304   ROW0363             1.
    COL0795   OBJ.FUNC      20.53304   ROW0363            -1.
    COL0796   ROW0110             1.   ROW0374             1.
    COL0796   ROW0380            -1.
    COL0797   OBJ.FUNC      283.1257   ROW0374             1.
    COL0798   OBJ.FUNC      283.1257   ROW0374            -1.
    COL0799   ROW0062             1.   ROW0375             1.
    COL0799   ROW0380            -1.
    COL0800   OBJ.FUNC      264.8305   ROW0375             1.
    COL0801   OBJ.FUNC      264.8305   ROW0375            -1.
    COL0802   ROW0344             1.   ROW0376             1.
    COL0802   ROW0380            -1.
    COL0803   OBJ.FUNC      231.2673   ROW0376             1.
    COL0804   OBJ.FUNC      231.2673   ROW0376            -1.
    COL0805   ROW0146             1.   ROW0377             1.
    COL0805   ROW0380            -1.
    COL0806   OBJ.FUNC      40.94334   ROW0377             1.
    COL0807   OBJ.FUNC      40.94334   ROW0377            -1.
    COL0808   ROW0111             1.   ROW0378             1.
    COL0808   ROW0380            -1.
    COL0809   OBJ.FUNC      327.2251   ROW0378             1.
    COL0810   OBJ.FUNC      327.2251   ROW0378            -1.
    COL0811   ROW0187             1.   ROW0379             1.
    COL0811   ROW0380            -1.
    COL0812   OBJ.FUNC      256.1476   ROW0379             1.
    COL0813   OBJ.FUNC      256.1476   ROW0379            -1.
    COL0814   ROW0146        -.50051   ROW0381             1.
    COL0815   ROW0065             1.   ROW0371        -.67823
    COL0815   ROW0381        -.58911
    COL0816   ROW0074             1.   ROW0364             1.
    COL0816   ROW0373       -1.01526   ROW0382         -.0381
    COL0816   ROW0383        -.08344   ROW0384        -.03839
    COL0816   ROW0385        -.14295   ROW0386        -.42703
    COL0816   ROW0387        -.16205   ROW0388         .89196
    COL0817   OBJ.FUNC      48.22996   ROW0364             1.
    COL0818   OBJ.FUNC      48.22996   ROW0364            -1.
    COL0819   ROW0076             1.   ROW0382             1.
    COL0819   ROW0388            -1.
    COL0820   OBJ.FUNC      1265.823   ROW0382             1.
    COL0821   OBJ.FUNC      1265.823   ROW0382            -1.
    COL0822   ROW0077             1.   ROW0383             1.
    COL0822   ROW0388            -1.
    COL0823   OBJ.FUNC      578.0347   ROW0383             1.
    COL0824   OBJ.FUNC      578.0347   ROW0383            -1.
    COL0825   ROW0281             1.   ROW0384             1.
    COL0825   ROW0388            -1.
    COL0826   OBJ.FUNC      1256.281   ROW0384             1.
    COL0827   OBJ.FUNC      1256.281   ROW0384            -1.
    COL0828   ROW0353             1.   ROW0385             1.
    COL0828   ROW0388            -1.
    COL0829   OBJ.FUNC      337.3819   ROW0385             1.
    COL0830   OBJ.FUNC      337.3819   ROW0385            -1.
    COL0831   ROW0119             1.   ROW0386             1.
    COL0831   ROW0388            -1.
    COL0832   OBJ.FUNC      112.9433   ROW0386             1.
    COL0833   OBJ.FUNC      112.9433   ROW0386            -1.
    COL0834   ROW0081             1.   ROW0387             1.
    COL0834   ROW0388            -1.
    COL0835   OBJ.FUNC       297.619   ROW0387             1.
    COL0836   OBJ.FUNC       297.619   ROW0387            -1.
    COL0837   ROW0119        -.44006   ROW0389             1.
    COL0838   ROW0083             1.   ROW0371        -.67823
    COL0838   ROW0389        -.55478
    COL0839   OBJ.FUNC       1.15548   ROW0371             1.
    COL0840   OBJ.FUNC       1.15548   ROW0371            -1.
    COL0841   ROW0240             1.   ROW0370            -1.
    COL0842   ROW0011             1.   ROW0217             1.
    COL0842   ROW0390         -.0215   ROW0391        -.18436
    COL0842   ROW0392        -.02228   ROW0393        -.01751
    COL0842   ROW0394        -.03549   ROW0395        -.02129
    COL0842   ROW0396        -.15312   ROW0397        -.10139
    COL0842   ROW0398        -.03539   ROW0399        -.10666
    COL0842   ROW0400        -.02717   ROW0401         -.0773
    COL0842   ROW0402         -.1049   ROW0403             1.
    COL0842   ROW0404             1.   ROW0405         .21283
    COL0843   ROW0040            -1.   ROW0390             1.
    COL0843   ROW0406            -1.
    COL0844   OBJ.FUNC      75.36931   ROW0390             1.
    COL0845   OBJ.FUNC      75.36931   ROW0390            -1.
    COL0846   ROW0041            -1.   ROW0391             1.
    COL0846   ROW0406            -1.
    COL0847   OBJ.FUNC       8.79013   ROW0391             1.
    COL0848   OBJ.FUNC       8.79013   ROW0391            -1.
    COL0849   ROW0043            -1.   ROW0392             1.
    COL0849   ROW0406            -1.
    COL0850   OBJ.FUNC      72.72727   ROW0392             1.
    COL0851   OBJ.FUNC      72.72727   ROW0392            -1.
    COL0852   ROW0045            -1.   ROW0393             1.
    COL0852   ROW0406            -1.
    COL0853   OBJ.FUNC      92.52406   ROW0393             1.
    COL0854   OBJ.FUNC      92.52406   ROW0393            -1.
    COL0855   ROW0047            -1.   ROW0394             1.
    COL0855   ROW0406            -1.
    COL0856   OBJ.FUNC      45.66627   ROW0394             1.
    COL0857   OBJ.FUNC      45.66627   ROW0394            -1.
    COL0858   ROW0049            -1.   ROW0395             1.
    COL0858   ROW0406            -1.
    COL0859   OBJ.FUNC       76.1035   ROW0395             1.
    COL0860   OBJ.FUNC       76.1035   ROW0395            -1.
    COL0861   ROW0050             1.   ROW0396             1.
    COL0861   ROW0406            -1.
    COL0862   OBJ.FUNC      10.58358   ROW0396             1.
    COL0863   OBJ.FUNC      10.58358   ROW0396            -1.
    COL0864   ROW0047         .92301   ROW0403            -1.
    COL0865   ROW0399             1.   ROW0403            -1.
    COL0866   OBJ.FUNC      15.19387   ROW0399             1.
    COL0867   OBJ.FUNC      15.19387   ROW0399            -1.
    COL0868   ROW0400             1.   ROW0403            -1.
    COL0869   OBJ.FUNC       59.6374   ROW0400             1.
    COL0870   OBJ.FUNC       59.6374   ROW0400            -1.
    COL0871   ROW0051            -1.   ROW0219             1.
    COL0871   ROW0401             1.   ROW0403            -1.
    COL0872   OBJ.FUNC      15.44783   ROW0401             1.
    COL0873   OBJ.FUNC      15.44783   ROW0401            -1.
    COL0874   ROW0053            -1.   ROW0220             1.
    COL0874   ROW0402             1.   ROW0403            -1.
    COL0875   OBJ.FUNC      20.96436   ROW0402             1.
    COL0876   OBJ.FUNC      20.96436   ROW0402            -1.
    COL0877   ROW0406         .89237   ROW0407       -1.03224
    COL0878   ROW0404            -1.   ROW0407             1.
    COL0879   ROW0060             1.   ROW0397             1.
    COL0879   ROW0407       -1.03224   ROW0408        -.44489
    COL0879   ROW0409        -.12391   ROW0410        -.04568
    COL0879   ROW0411        -.15648   ROW0412        -.08404
    COL0879   ROW0413        -.02858   ROW0414         .88358
    COL0880   OBJ.FUNC      15.98363   ROW0397             1.
    COL0881   OBJ.FUNC      15.98363   ROW0397            -1.
    COL0882   ROW0110             1.   ROW0408             1.
    COL0882   ROW0414            -1.
    COL0883   OBJ.FUNC      35.92728   ROW0408             1.
    COL0884   OBJ.FUNC      35.92728   ROW0408            -1.
    COL0885   ROW0062             1.   ROW0409             1.
    COL0885   ROW0414            -1.
    COL0886   OBJ.FUNC       128.999   ROW0409             1.
    COL0887   OBJ.FUNC       128.999   ROW0409            -1.
    COL0888   ROW0229             1.   ROW0410             1.
    COL0888   ROW0414            -1.
    COL0889   OBJ.FUNC      349.8951   ROW0410             1.
    COL0890   OBJ.FUNC      349.8951   ROW0410            -1.
    COL0891   ROW0111             1.   ROW0411             1.
    COL0891   ROW0414            -1.
    COL0892   OBJ.FUNC       102.145   ROW0411             1.
    COL0893   OBJ.FUNC       102.145   ROW0411            -1.
    COL0894   ROW0063             1.   ROW0412             1.
    COL0894   ROW0414            -1.
    COL0895   OBJ.FUNC      190.1864   ROW0412             1.
    COL0896   OBJ.FUNC      190.1864   ROW0412            -1.
    COL0897   ROW0413             1.   ROW0414            -1.
    COL0897   ROW0415             1.
    COL0898   OBJ.FUNC      559.2841   ROW0413             1.
    COL0899   OBJ.FUNC      559.2841   ROW0413            -1.
    COL0900   ROW0111        -.53344   ROW0416             1.
    COL0901   ROW0065             1.   ROW0405        -.78717
    COL0901   ROW0416        -.77623
    COL0902   ROW0074             1.   ROW0398             1.
    COL0902   ROW0407       -1.03224   ROW0417        -.28333
    COL0902   ROW0418        -.24322   ROW0419        -.11566
    COL0902   ROW0420        -.06016   ROW0421         -.0967
    COL0902   ROW0422        -.05641   ROW0423         .85549
    COL0903   OBJ.FUNC      45.78754   ROW0398             1.
    COL0904   OBJ.FUNC      45.78754   ROW0398            -1.
    COL0905   ROW0076             1.   ROW0417             1.
    COL0905   ROW0423            -1.
    COL0906   OBJ.FUNC      161.6031   ROW0417             1.
    COL0907   OBJ.FUNC      161.6031   ROW0417            -1.
    COL0908   ROW0077             1.   ROW0418             1.
    COL0908   ROW0423            -1.
    COL0909   OBJ.FUNC       188.253   ROW0418             1.
    COL0910   OBJ.FUNC       188.253   ROW0418            -1.
    COL0911   ROW0281             1.   ROW0419             1.
    COL0911   ROW0423            -1.
    COL0912   OBJ.FUNC      395.8828   ROW0419             1.
    COL0913   OBJ.FUNC      395.8828   ROW0419            -1.
    COL0914   ROW0238             1.   ROW0420             1.
    COL0914   ROW0423            -1.
    COL0915   OBJ.FUNC       761.035   ROW0420             1.
    COL0916   OBJ.FUNC       761.035   ROW0420            -1.
    COL0917   ROW0079             1.   ROW0421             1.
    COL0917   ROW0423            -1.
    COL0918   OBJ.FUNC      473.4849   ROW0421             1.
    COL0919   OBJ.FUNC      473.4849   ROW0421            -1.
    COL0920   ROW0422             1.   ROW0423            -1.
    COL0920   ROW0424             1.
    COL0921   OBJ.FUNC      811.6884   ROW0422             1.
    COL0922   OBJ.FUNC      811.6884   ROW0422            -1.
    COL0923   ROW0238        -.27449   ROW0425             1.
    COL0924   ROW0083             1.   ROW0405        -.78717
    COL0924   ROW0425        -.26776
    COL0925   OBJ.FUNC       1.27563   ROW0405             1.
    COL0926   OBJ.FUNC       1.27563   ROW0405            -1.
    COL0927   ROW0240             1.   ROW0404            -1.
    COL0928   ROW0012             1.   ROW0426        -.21359
    COL0928   ROW0427        -.01762   ROW0428        -.15725
    COL0928   ROW0429        -.00888   ROW0430         -.2571
    COL0928   ROW0431         -.1523   ROW0432        -.00928
    COL0928   ROW0433         -.1229   ROW0434         -.0104
    COL0928   ROW0435             1.   ROW0436             1.
    COL0928   ROW0437         .11792   ROW0438             1.
    COL0929   ROW0103            -1.   ROW0426             1.
    COL0929   ROW0439            -1.
    COL0930   OBJ.FUNC       1.79584   ROW0426             1.
    COL0931   OBJ.FUNC       1.79584   ROW0426            -1.
    COL0932   ROW0040            -1.   ROW0427             1.
    COL0932   ROW0439            -1.
    COL0933   OBJ.FUNC      21.77226   ROW0427             1.
    COL0934   OBJ.FUNC      21.77226   ROW0427            -1.
    COL0935   ROW0048            -1.   ROW0428             1.
    COL0935   ROW0439            -1.
    COL0936   OBJ.FUNC       2.43929   ROW0428             1.
    COL0937   OBJ.FUNC       2.43929   ROW0428            -1.
    COL0938   ROW0048         .95748   ROW0435            -1.
    COL0939   ROW0431             1.   ROW0435            -1.
    COL0940   OBJ.FUNC       2.51856   ROW0431             1.
    COL0941   OBJ.FUNC       2.51856   ROW0431            -1.
    COL0942   ROW0432             1.   ROW0435            -1.
    COL0943   OBJ.FUNC      41.35307   ROW0432             1.
    COL0944   OBJ.FUNC      41.35307   ROW0432            -1.
    COL0945   ROW0051            -1.   ROW0433             1.
    COL0945   ROW0435            -1.   ROW0440             1.
    COL0946   OBJ.FUNC      36.88676   ROW0433             1.
    COL0947   OBJ.FUNC      36.88676   ROW0433            -1.
    COL0948   ROW0053            -1.   ROW0434             1.
    COL0948   ROW0435            -1.   ROW0441             1.
    COL0949   OBJ.FUNC       3.12094   ROW0434             1.
    COL0950   OBJ.FUNC       3.12094   ROW0434            -1.
    COL0951   ROW0439         .81394   ROW0442       -1.19001
    COL0952   ROW0436            -1.   ROW0442             1.
    COL0953   ROW0060             1.   ROW0429             1.
    COL0953   ROW0442       -1.19001   ROW0443        -.05486
    COL0953   ROW0444        -.65829   ROW0445        -.13651
    COL0953   ROW0446         .84966
    COL0954   OBJ.FUNC      43.20028   ROW0429             1.
    COL0955   OBJ.FUNC      43.20028   ROW0429            -1.
    COL0956   ROW0062             1.   ROW0443             1.
    COL0956   ROW0446            -1.
    COL0957   OBJ.FUNC      787.4016   ROW0443             1.
    COL0958   OBJ.FUNC      787.4016   ROW0443            -1.
    COL0959   ROW0063             1.   ROW0444             1.
    COL0959   ROW0446            -1.
    COL0960   OBJ.FUNC       65.6254   ROW0444             1.
    COL0961   OBJ.FUNC       65.6254   ROW0444            -1.
    COL0962   ROW0187             1.   ROW0445             1.
    COL0962   ROW0446            -1.
    COL0963   OBJ.FUNC      316.4557   ROW0445             1.
    COL0964   OBJ.FUNC      316.4557   ROW0445            -1.
    COL0965   ROW0186        -.47505   ROW0447             1.
    COL0966   ROW0065             1.   ROW0437        -.88208
    COL0966   ROW0447        -.98644
    COL0967   ROW0074             1.   ROW0430             1.
    COL0967   ROW0442       -1.19001   ROW0448        -.00602
    COL0967   ROW0449        -.89108   ROW0450         -.0029
    COL0967   ROW0451        -.09029   ROW0452         .99029
    COL0968   OBJ.FUNC       1.49192   ROW0430             1.
    COL0969   OBJ.FUNC       1.49192   ROW0430            -1.
    COL0970   ROW0075             1.   ROW0448             1.
    COL0970   ROW0452            -1.
    COL0971   OBJ.FUNC      247.7701   ROW0448             1.
    COL0972   OBJ.FUNC      247.7701   ROW0448            -1.
    COL0973   ROW0120             1.   ROW0449             1.
    COL0973   ROW0452            -1.
    COL0974   OBJ.FUNC       1.67428   ROW0449             1.
    COL0975   OBJ.FUNC       1.67428   ROW0449            -1.
    COL0976   ROW0119             1.   ROW0450             1.
    COL0976   ROW0452            -1.
    COL0977   OBJ.FUNC       514.933   ROW0450             1.
    COL0978   OBJ.FUNC       514.933   ROW0450            -1.
    COL0979   ROW0197             1.   ROW0451             1.
    COL0979   ROW0452            -1.
    COL0980   OBJ.FUNC      16.52456   ROW0451             1.
    COL0981   OBJ.FUNC      16.52456   ROW0451            -1.
    COL0982   ROW0197        -.48595   ROW0453             1.
    COL0983   ROW0083             1.   ROW0437        -.88208
    COL0983   ROW0453        -.99577
    COL0984   OBJ.FUNC        .33834   ROW0437             1.
    COL0985   OBJ.FUNC        .33834   ROW0437            -1.
    COL0986   ROW0436            -1.   ROW0454             1.
    COL0987   ROW0013             1.   ROW0438             1.
    COL0987   ROW0455        -.04993   ROW0456        -.06659
    COL0987   ROW0457        -.11275   ROW0458        -.00737
    COL0987   ROW0459        -.00658   ROW0460        -.13281
    COL0987   ROW0461        -.21861   ROW0462         -.0775
    COL0987   ROW0463        -.11192   ROW0464        -.01481
    COL0987   ROW0465        -.19155   ROW0466        -.15614
    COL0987   ROW0467             1.   ROW0468             1.
    COL0987   ROW0469         .31877
    COL0988   ROW0040            -1.   ROW0455             1.
    COL0988   ROW0470            -1.
    COL0989   OBJ.FUNC       7.22491   ROW0455             1.
    COL0990   OBJ.FUNC       7.22491   ROW0455            -1.
    COL0991   ROW0048            -1.   ROW0456             1.
    COL0991   ROW0470            -1.
    COL0992   OBJ.FUNC       5.41718   ROW0456             1.
    COL0993   OBJ.FUNC       5.41718   ROW0456            -1.
    COL0994   ROW0049            -1.   ROW0457             1.
    COL0994   ROW0470            -1.
    COL0995   OBJ.FUNC       3.19967   ROW0457             1.
    COL0996   OBJ.FUNC       3.19967   ROW0457            -1.
    COL0997   ROW0458             1.   ROW0470            -1.
    COL0997   ROW0471            -1.
    COL0998   OBJ.FUNC      48.94284   ROW0458             1.
    COL0999   OBJ.FUNC      48.94284   ROW0458            -1.
    COL1000   ROW0177            -1.   ROW0459             1.
    COL1000   ROW0470            -1.
    COL1001   OBJ.FUNC      54.82456   ROW0459             1.
    COL1002   OBJ.FUNC      54.82456   ROW0459            -1.
    COL1003   ROW0050             1.   ROW0460             1.
    COL1003   ROW0470            -1.
    COL1004   OBJ.FUNC       2.71636   ROW0460             1.
    COL1005   OBJ.FUNC       2.71636   ROW0460            -1.
    COL1006   ROW0049         .94605   ROW0467            -1.
    COL1007   ROW0463             1.   ROW0467            -1.
    COL1008   OBJ.FUNC       3.22323   ROW0463             1.
    COL1009   OBJ.FUNC       3.22323   ROW0463            -1.
    COL1010   ROW0464             1.   ROW0467            -1.
    COL1011   OBJ.FUNC      24.35579   ROW0464             1.
    COL1012   OBJ.FUNC      24.35579   ROW0464            -1.
    COL1013   ROW0051            -1.   ROW0440             1.
    COL1013   ROW0465             1.   ROW0467            -1.
    COL1014   OBJ.FUNC       2.31048   ROW0465             1.
    COL1015   OBJ.FUNC       2.31048   ROW0465            -1.
    COL1016   ROW0053            -1.   ROW0441             1.
    COL1016   ROW0466             1.   ROW0467            -1.
    COL1017   OBJ.FUNC       1.88337   ROW0466             1.
    COL1018   OBJ.FUNC       1.88337   ROW0466            -1.
    COL1019   ROW0470          .9264   ROW0472       -1.05991
    COL1020   ROW0468            -1.   ROW0472             1.
    COL1021   ROW0060             1.   ROW0461             1.
    COL1021   ROW0472       -1.05991   ROW0473         -.0747
    COL1021   ROW0474        -.24601   ROW0475        -.01691
    COL1021   ROW0476         -.0346   ROW0477        -.00606
    COL1021   ROW0478        -.00801   ROW0479        -.67149
    COL1021   ROW0480        -.00872   ROW0481        -.00564
    COL1021   ROW0482        1.07214
    COL1022   OBJ.FUNC       1.65019   ROW0461             1.
    COL1023   OBJ.FUNC       1.65019   ROW0461            -1.
    COL1024   ROW0061             1.   ROW0473             1.
    COL1024   ROW0482            -1.
    COL1025   OBJ.FUNC      22.08968   ROW0473             1.
    COL1026   OBJ.FUNC      22.08968   ROW0473            -1.
    COL1027   ROW0112             1.   ROW0474             1.
    COL1027   ROW0482            -1.
    COL1028   OBJ.FUNC       6.70781   ROW0474             1.
    COL1029   OBJ.FUNC       6.70781   ROW0474            -1.
    COL1030   ROW0110             1.   ROW0475             1.
    COL1030   ROW0482            -1.
    COL1031   OBJ.FUNC      97.59907   ROW0475             1.
    COL1032   OBJ.FUNC      97.59907   ROW0475            -1.
    COL1033   ROW0062             1.   ROW0476             1.
    COL1033   ROW0482            -1.
    COL1034   OBJ.FUNC      47.69172   ROW0476             1.
    COL1035   OBJ.FUNC      47.69172   ROW0476            -1.
    COL1036   ROW0146             1.   ROW0477             1.
    COL1036   ROW0482            -1.
    COL1037   OBJ.FUNC      272.4796   ROW0477             1.
    COL1038   OBJ.FUNC      272.4796   ROW0477            -1.
    COL1039   ROW0111             1.   ROW0478             1.
    COL1039   ROW0482            -1.
    COL1040   OBJ.FUNC      205.9308   ROW0478             1.
    COL1041   OBJ.FUNC      205.9308   ROW0478            -1.
    COL1042   ROW0063             1.   ROW0479             1.
    COL1042   ROW0482            -1.
    COL1043   OBJ.FUNC       2.45751   ROW0479             1.
    COL1044   OBJ.FUNC       2.45751   ROW0479            -1.
    COL1045   ROW0480             1.   ROW0482            -1.
    COL1045   ROW0483             1.
    COL1046   OBJ.FUNC      189.3222   ROW0480             1.
    COL1047   OBJ.FUNC      189.3222   ROW0480            -1.
    COL1048   ROW0481             1.   ROW0482            -1.
    COL1048   ROW0484             1.
    COL1049   OBJ.FUNC      292.3977   ROW0481             1.
    COL1050   OBJ.FUNC      292.3977   ROW0481            -1.
    COL1051   ROW0063         -.6899   ROW0485             1.
    COL1052   ROW0065             1.   ROW0469        -.68123
    COL1052   ROW0485        -.92774
    COL1053   ROW0074             1.   ROW0462             1.
    COL1053   ROW0472       -1.05991   ROW0486        -.11873
    COL1053   ROW0487        -.20131   ROW0488        -.04313
    COL1053   ROW0489        -.06733   ROW0490        -.48228
    COL1053   ROW0491        -.05948   ROW0492         .97227
    COL1054   OBJ.FUNC       4.65497   ROW0462             1.
    COL1055   OBJ.FUNC       4.65497   ROW0462            -1.
    COL1056   ROW0075             1.   ROW0486             1.
    COL1056   ROW0492            -1.
    COL1057   OBJ.FUNC      39.20646   ROW0486             1.
    COL1058   OBJ.FUNC      39.20646   ROW0486            -1.
    COL1059   ROW0120             1.   ROW0487             1.
    COL1059   ROW0492            -1.
    COL1060   OBJ.FUNC      23.12353   ROW0487             1.
    COL1061   OBJ.FUNC      23.12353   ROW0487            -1.
    COL1062   ROW0077             1.   ROW0488             1.
    COL1062   ROW0492            -1.
    COL1063   OBJ.FUNC      107.9214   ROW0488             1.
    COL1064   OBJ.FUNC      107.9214   ROW0488            -1.
    COL1065   ROW0197             1.   ROW0489             1.
    COL1065   ROW0492            -1.
    COL1066   OBJ.FUNC      69.13717   ROW0489             1.
    COL1067   OBJ.FUNC      69.13717   ROW0489            -1.
    COL1068   ROW0079             1.   ROW0490             1.
    COL1068   ROW0492            -1.
    COL1069   OBJ.FUNC       9.65195   ROW0490             1.
    COL1070   OBJ.FUNC       9.65195   ROW0490            -1.
    COL1071   ROW0081             1.   ROW0491             1.
    COL1071   ROW0492            -1.
    COL1072   OBJ.FUNC      78.25951   ROW0491             1.
    COL1073   OBJ.FUNC      78.25951   ROW0491            -1.
    COL1074   ROW0079        -.65813   ROW0493             1.
    COL1075   ROW0083             1.   ROW0469        -.68123
    COL1075   ROW0493        -.82212
    COL1076   OBJ.FUNC        .24576   ROW0469             1.
    COL1077   OBJ.FUNC        .24576   ROW0469            -1.
    COL1078   ROW0454             1.   ROW0468            -1.
    COL1079   ROW0014             1.   ROW0494        -.03988
    COL1079   ROW0495        -.07732   ROW0496        -.18671
    COL1079   ROW0497        -.03224   ROW0498        -.16665
    COL1079   ROW0499        -.10506   ROW0500         -.0306
    COL1079   ROW0501        -.29413   ROW0502        -.02402
    COL1079   ROW0503        -.13071   ROW0504        -.13252
    COL1079   ROW0505             1.   ROW0506             1.
    COL1079   ROW0507          .1574   ROW0508             1.
    COL1080   ROW0049            -1.   ROW0494             1.
    COL1080   ROW0509            -1.
    COL1081   OBJ.FUNC      13.00187   ROW0494             1.
    COL1082   OBJ.FUNC      13.00187   ROW0494            -1.
    COL1083   ROW0471            -1.   ROW0495             1.
    COL1083   ROW0509            -1.
    COL1084   OBJ.FUNC       6.70601   ROW0495             1.
    COL1085   OBJ.FUNC       6.70601   ROW0495            -1.
    COL1086   ROW0496             1.   ROW0509            -1.
    COL1086   ROW0510            -1.
    COL1087   OBJ.FUNC       2.77708   ROW0496             1.
    COL1088   OBJ.FUNC       2.77708   ROW0496            -1.
    COL1089   ROW0177            -1.   ROW0497             1.
    COL1089   ROW0509            -1.
    COL1090   OBJ.FUNC      16.08441   ROW0497             1.
    COL1091   OBJ.FUNC      16.08441   ROW0497            -1.
    COL1092   ROW0050             1.   ROW0498             1.
    COL1092   ROW0509            -1.
    COL1093   OBJ.FUNC       3.11135   ROW0498             1.
    COL1094   OBJ.FUNC       3.11135   ROW0498            -1.
    COL1095   ROW0471         .90943   ROW0505            -1.
    COL1096   ROW0501             1.   ROW0505            -1.
    COL1097   OBJ.FUNC       1.76288   ROW0501             1.
    COL1098   OBJ.FUNC       1.76288   ROW0501            -1.
    COL1099   ROW0502             1.   ROW0505            -1.
    COL1100   OBJ.FUNC      21.58615   ROW0502             1.
    COL1101   OBJ.FUNC      21.58615   ROW0502            -1.
    COL1102   ROW0051            -1.   ROW0503             1.
    COL1102   ROW0505            -1.   ROW0511             1.
    COL1103   OBJ.FUNC       3.91264   ROW0503             1.
    COL1104   OBJ.FUNC       3.91264   ROW0503            -1.
    COL1105   ROW0053            -1.   ROW0504             1.
    COL1105   ROW0505            -1.   ROW0512             1.
    COL1106   OBJ.FUNC       3.96681   ROW0504             1.
    COL1107   OBJ.FUNC       3.96681   ROW0504            -1.
    COL1108   ROW0509         .93609   ROW0513       -1.02071
    COL1109   ROW0506            -1.   ROW0513             1.
    COL1110   ROW0060             1.   ROW0499             1.
    COL1110   ROW0513       -1.02071   ROW0514        -.05039
    COL1110   ROW0515        -.02751   ROW0516        -.15939
    COL1110   ROW0517        -.14357   ROW0518        -.54061
    COL1110   ROW0519         .92147
    COL1111   OBJ.FUNC       4.93535   ROW0499             1.
    COL1112   OBJ.FUNC       4.93535   ROW0499            -1.
    COL1113   ROW0062             1.   ROW0514             1.
    COL1113   ROW0519            -1.
    COL1114   OBJ.FUNC      97.94319   ROW0514             1.
    COL1115   OBJ.FUNC      97.94319   ROW0514            -1.
    COL1116   ROW0111             1.   ROW0515             1.
    COL1116   ROW0519            -1.
    COL1117   OBJ.FUNC      179.4044   ROW0515             1.
    COL1118   OBJ.FUNC      179.4044   ROW0515            -1.
    COL1119   ROW0063             1.   ROW0516             1.
    COL1119   ROW0519            -1.
    COL1120   OBJ.FUNC      30.96359   ROW0516             1.
    COL1121   OBJ.FUNC      30.96359   ROW0516            -1.
    COL1122   ROW0483             1.   ROW0517             1.
    COL1122   ROW0519            -1.
    COL1123   OBJ.FUNC      34.37608   ROW0517             1.
    COL1124   OBJ.FUNC      34.37608   ROW0517            -1.
    COL1125   ROW0415             1.   ROW0518             1.
    COL1125   ROW0519            -1.
    COL1126   OBJ.FUNC       9.12925   ROW0518             1.
    COL1127   OBJ.FUNC       9.12925   ROW0518            -1.
    COL1128   ROW0483        -.40152   ROW0520             1.
    COL1129   ROW0065             1.   ROW0507         -.8426
    COL1129   ROW0520        -.43586
    COL1130   ROW0074             1.   ROW0500             1.
    COL1130   ROW0513       -1.02071   ROW0521        -.13557
    COL1130   ROW0522        -.00766   ROW0523        -.14378
    COL1130   ROW0524           -.23   ROW0525        -.36863
    COL1130   ROW0526         .88564
    COL1131   OBJ.FUNC      16.94686   ROW0500             1.
    COL1132   OBJ.FUNC      16.94686   ROW0500            -1.
    COL1133   ROW0077             1.   ROW0521             1.
    COL1133   ROW0526            -1.
    COL1134   OBJ.FUNC          125.   ROW0521             1.
    COL1135   OBJ.FUNC          125.   ROW0521            -1.
    COL1136   ROW0238             1.   ROW0522             1.
    COL1136   ROW0526            -1.
    COL1137   OBJ.FUNC      2212.389   ROW0522             1.
    COL1138   OBJ.FUNC      2212.389   ROW0522            -1.
    COL1139   ROW0079             1.   ROW0523             1.
    COL1139   ROW0526            -1.
    COL1140   OBJ.FUNC      117.8689   ROW0523             1.
    COL1141   OBJ.FUNC      117.8689   ROW0523            -1.
    COL1142   ROW0080             1.   ROW0524             1.
    COL1142   ROW0526            -1.
    COL1143   OBJ.FUNC      73.68111   ROW0524             1.
    COL1144   OBJ.FUNC      73.68111   ROW0524            -1.
    COL1145   ROW0424             1.   ROW0525             1.
    COL1145   ROW0526            -1.
    COL1146   OBJ.FUNC      45.97279   ROW0525             1.
    COL1147   OBJ.FUNC      45.97279   ROW0525            -1.
    COL1148   ROW0080        -.20882   ROW0527             1.
    COL1149   ROW0083             1.   ROW0507         -.8426
    COL1149   ROW0527        -.52588
    COL1150   OBJ.FUNC         .4369   ROW0507             1.
    COL1151   OBJ.FUNC         .4369   ROW0507            -1.
    COL1152   ROW0506            -1.   ROW0528             1.
    COL1153   ROW0015             1.   ROW0508             1.
    COL1153   ROW0529        -.03929   ROW0530        -.03833
    COL1153   ROW0531        -.02507   ROW0532        -.11186
    COL1153   ROW0533        -.01124   ROW0534        -.12565
    COL1153   ROW0535        -.22484   ROW0536        -.07991
    COL1153   ROW0537        -.08566   ROW0538        -.02089
    COL1153   ROW0539        -.12248   ROW0540        -.09257
    COL1153   ROW0541             1.   ROW0542             1.
    COL1153   ROW0543         .25956
    COL1154   ROW0040            -1.   ROW0529             1.
    COL1154   ROW0544            -1.
    COL1155   OBJ.FUNC       18.3392   ROW0529             1.
    COL1156   OBJ.FUNC       18.3392   ROW0529            -1.
    COL1157   ROW0049            -1.   ROW0530             1.
    COL1157   ROW0544            -1.
    COL1158   OBJ.FUNC      18.80123   ROW0530             1.
    COL1159   OBJ.FUNC      18.80123   ROW0530            -1.
    COL1160   ROW0471            -1.   ROW0531             1.
    COL1160   ROW0544            -1.
    COL1161   OBJ.FUNC      28.74554   ROW0531             1.
    COL1162   OBJ.FUNC      28.74554   ROW0531            -1.
    COL1163   ROW0510            -1.   ROW0532             1.
    COL1163   ROW0544            -1.
    COL1164   OBJ.FUNC       6.44205   ROW0532             1.
    COL1165   OBJ.FUNC       6.44205   ROW0532            -1.
    COL1166   ROW0177            -1.   ROW0533             1.
    COL1166   ROW0544            -1.
    COL1167   OBJ.FUNC      64.12723   ROW0533             1.
    COL1168   OBJ.FUNC      64.12723   ROW0533            -1.
    COL1169   ROW0050             1.   ROW0534             1.
    COL1169   ROW0544            -1.
    COL1170   OBJ.FUNC       5.73513   ROW0534             1.
    COL1171   OBJ.FUNC       5.73513   ROW0534            -1.
    COL1172   ROW0510          .8729   ROW0541            -1.
    COL1173   ROW0537             1.   ROW0541            -1.
    COL1174   OBJ.FUNC       8.41284   ROW0537             1.
    COL1175   OBJ.FUNC       8.41284   ROW0537            -1.
    COL1176   ROW0538             1.   ROW0541            -1.
    COL1177   OBJ.FUNC      34.48989   ROW0538             1.
    COL1178   OBJ.FUNC      34.48989   ROW0538            -1.
    COL1179   ROW0051            -1.   ROW0511             1.
    COL1179   ROW0539             1.   ROW0541            -1.
    COL1180   OBJ.FUNC       7.78465   ROW0539             1.
    COL1181   OBJ.FUNC       7.78465   ROW0539            -1.
    COL1182   ROW0053            -1.   ROW0512             1.
    COL1182   ROW0540             1.   ROW0541            -1.
    COL1183   OBJ.FUNC       5.88346   ROW0540             1.
    COL1184   OBJ.FUNC       5.88346   ROW0540            -1.
    COL1185   ROW0544         .92468   ROW0545       -1.06863
    COL1186   ROW0542            -1.   ROW0545             1.
    COL1187   ROW0060             1.   ROW0535             1.
    COL1187   ROW0545       -1.06863   ROW0546        -.06537
    COL1187   ROW0547         -.3127   ROW0548        -.40116
    COL1187   ROW0549        -.00253   ROW0550        -.18944
    COL1187   ROW0551          .9712
    COL1188   OBJ.FUNC       3.20492   ROW0535             1.
    COL1189   OBJ.FUNC       3.20492   ROW0535            -1.
    COL1190   ROW0062             1.   ROW0546             1.
    COL1190   ROW0551            -1.
    COL1191   OBJ.FUNC      49.02441   ROW0546             1.
    COL1192   OBJ.FUNC      49.02441   ROW0546            -1.
    COL1193   ROW0063             1.   ROW0547             1.
    COL1193   ROW0551            -1.
    COL1194   OBJ.FUNC      10.24926   ROW0547             1.
    COL1195   OBJ.FUNC      10.24926   ROW0547            -1.
    COL1196   ROW0415             1.   ROW0548             1.
    COL1196   ROW0551            -1.
    COL1197   OBJ.FUNC       7.98913   ROW0548             1.
    COL1198   OBJ.FUNC       7.98913   ROW0548            -1.
    COL1199   ROW0484             1.   ROW0549             1.
    COL1199   ROW0551            -1.
    COL1200   OBJ.FUNC      1269.036   ROW0549             1.
    COL1201   OBJ.FUNC      1269.036   ROW0549            -1.
    COL1202   ROW0187             1.   ROW0550             1.
    COL1202   ROW0551            -1.
    COL1203   OBJ.FUNC      16.91761   ROW0550             1.
    COL1204   OBJ.FUNC      16.91761   ROW0550            -1.
    COL1205   ROW0415        -.82927   ROW0552             1.
    COL1206   ROW0065             1.   ROW0543        -.74044
    COL1206   ROW0552        -.79537
    COL1207   ROW0074             1.   ROW0536             1.
    COL1207   ROW0545       -1.06863   ROW0553        -.19527
    COL1207   ROW0554        -.63119   ROW0555        -.05936
    COL1207   ROW0556         .88582
    COL1208   OBJ.FUNC       9.01778   ROW0536             1.
    COL1209   OBJ.FUNC       9.01778   ROW0536            -1.
    COL1210   ROW0079             1.   ROW0553             1.
    COL1210   ROW0556            -1.
    COL1211   OBJ.FUNC      46.18085   ROW0553             1.
    COL1212   OBJ.FUNC      46.18085   ROW0553            -1.
    COL1213   ROW0424             1.   ROW0554             1.
    COL1213   ROW0556            -1.
    COL1214   OBJ.FUNC      14.28694   ROW0554             1.
    COL1215   OBJ.FUNC      14.28694   ROW0554            -1.
    COL1216   ROW0081             1.   ROW0555             1.
    COL1216   ROW0556            -1.
    COL1217   OBJ.FUNC      151.9295   ROW0555             1.
    COL1218   OBJ.FUNC      151.9295   ROW0555            -1.
    COL1219   ROW0424        -.85514   ROW0557             1.
    COL1220   ROW0083             1.   ROW0543        -.74044
    COL1220   ROW0557         -.8801
    COL1221   OBJ.FUNC        .53357   ROW0543             1.
    COL1222   OBJ.FUNC        .53357   ROW0543            -1.
    COL1223   ROW0528             1.   ROW0542            -1.
    COL1224   ROW0558        -.01807   ROW0559        -.03426
    COL1224   ROW0560        -.01306   ROW0561        -.02163
    COL1224   ROW0562        -.02895   ROW0563        -.04032
    COL1224   ROW0564        -.02132   ROW0565        -.13788
    COL1224   ROW0566        -.03506   ROW0567        -.02243
    COL1224   ROW0568        -.24667   ROW0569        -.01462
    COL1224   ROW0570        -.01821   ROW0571        -.02543
    COL1224   ROW0572             1.   ROW0573             1.
    COL1224   ROW0574           .069
    COL1225   ROW0037            -1.
    COL1226   ROW0217            -1.
    COL1227   ROW0438            -1.
    COL1228   ROW0508            -1.
    COL1229   ROW0040            -1.   ROW0558             1.
    COL1229   ROW0575            -1.
    COL1230   OBJ.FUNC      78.86436   ROW0558             1.
    COL1231   OBJ.FUNC      78.86436   ROW0558            -1.
    COL1232   ROW0041            -1.   ROW0559             1.
    COL1232   ROW0575            -1.
    COL1233   OBJ.FUNC      41.59734   ROW0559             1.
    COL1234   OBJ.FUNC      41.59734   ROW0559            -1.
    COL1235   ROW0047            -1.   ROW0560             1.
    COL1235   ROW0575            -1.
    COL1236   OBJ.FUNC      109.0988   ROW0560             1.
    COL1237   OBJ.FUNC      109.0988   ROW0560            -1.
    COL1238   ROW0049            -1.   ROW0561             1.
    COL1238   ROW0575            -1.
    COL1239   OBJ.FUNC      65.87615   ROW0561             1.
    COL1240   OBJ.FUNC      65.87615   ROW0561            -1.
    COL1241   ROW0471            -1.   ROW0562             1.
    COL1241   ROW0575            -1.
    COL1242   OBJ.FUNC      49.23198   ROW0562             1.
    COL1243   OBJ.FUNC      49.23198   ROW0562            -1.
    COL1244   ROW0510            -1.   ROW0563             1.
    COL1244   ROW0575            -1.
    COL1245   OBJ.FUNC      35.35068   ROW0563             1.
    COL1246   OBJ.FUNC      35.35068   ROW0563            -1.
    COL1247   ROW0177            -1.   ROW0564             1.
    COL1247   ROW0575            -1.
    COL1248   OBJ.FUNC      66.84492   ROW0564             1.
    COL1249   OBJ.FUNC      66.84492   ROW0564            -1.
    COL1250   ROW0050             1.   ROW0565             1.
    COL1250   ROW0575            -1.
    COL1251   OBJ.FUNC      10.33677   ROW0565             1.
    COL1252   OBJ.FUNC      10.33677   ROW0565            -1.
    COL1253   ROW0177         .88626   ROW0572            -1.
    COL1254   ROW0568             1.   ROW0572            -1.
    COL1255   OBJ.FUNC       5.77768   ROW0568             1.
    COL1256   OBJ.FUNC       5.77768   ROW0568            -1.
    COL1257   ROW0569             1.   ROW0572            -1.
    COL1258   OBJ.FUNC      97.46589   ROW0569             1.
    COL1259   OBJ.FUNC      97.46589   ROW0569            -1.
    COL1260   ROW0051            -1.   ROW0570             1.
    COL1260   ROW0572            -1.
    COL1261   ROW0052            -1.
    COL1262   ROW0219            -1.
    COL1263   ROW0440            -1.
    COL1264   ROW0511            -1.
    COL1265   OBJ.FUNC      56.05381   ROW0570             1.
    COL1266   OBJ.FUNC      56.05381   ROW0570            -1.
    COL1267   ROW0053            -1.   ROW0571             1.
    COL1267   ROW0572            -1.
    COL1268   ROW0054            -1.
    COL1269   ROW0220            -1.
    COL1270   ROW0441            -1.
    COL1271   ROW0512            -1.
    COL1272   OBJ.FUNC      78.24726   ROW0571             1.
    COL1273   OBJ.FUNC      78.24726   ROW0571            -1.
    COL1274   ROW0575         .89245   ROW0576       -1.03017
    COL1275   ROW0573            -1.   ROW0576             1.
    COL1276   ROW0060             1.   ROW0566             1.
    COL1276   ROW0576       -1.03017   ROW0577         -.1252
    COL1276   ROW0578        -.06919   ROW0579        -.14878
    COL1276   ROW0580        -.23504   ROW0581        -.04081
    COL1276   ROW0582        -.11691   ROW0583        -.02764
    COL1276   ROW0584         -.1374   ROW0585         .90098
    COL1277   OBJ.FUNC      40.65041   ROW0566             1.
    COL1278   OBJ.FUNC      40.65041   ROW0566            -1.
    COL1279   ROW0110             1.   ROW0577             1.
    COL1279   ROW0585            -1.
    COL1280   OBJ.FUNC      324.6753   ROW0577             1.
    COL1281   OBJ.FUNC      324.6753   ROW0577            -1.
    COL1282   ROW0062             1.   ROW0578             1.
    COL1282   ROW0585            -1.
    COL1283   OBJ.FUNC      587.5441   ROW0578             1.
    COL1284   OBJ.FUNC      587.5441   ROW0578            -1.
    COL1285   ROW0111             1.   ROW0579             1.
    COL1285   ROW0585            -1.
    COL1286   OBJ.FUNC       273.224   ROW0579             1.
    COL1287   OBJ.FUNC       273.224   ROW0579            -1.
    COL1288   ROW0063             1.   ROW0580             1.
    COL1288   ROW0585            -1.
    COL1289   OBJ.FUNC      172.9505   ROW0580             1.
    COL1290   OBJ.FUNC      172.9505   ROW0580            -1.
    COL1291   ROW0483             1.   ROW0581             1.
    COL1291   ROW0585            -1.
    COL1292   OBJ.FUNC      996.0159   ROW0581             1.
    COL1293   OBJ.FUNC      996.0159   ROW0581            -1.
    COL1294   ROW0415             1.   ROW0582             1.
    COL1294   ROW0585            -1.
    COL1295   OBJ.FUNC      347.7051   ROW0582             1.
    COL1296   OBJ.FUNC      347.7051   ROW0582            -1.
    COL1297   ROW0484             1.   ROW0583             1.
    COL1297   ROW0585            -1.
    COL1298   OBJ.FUNC      1470.588   ROW0583             1.
    COL1299   OBJ.FUNC      1470.588   ROW0583            -1.
    COL1300   ROW0187             1.   ROW0584             1.
    COL1300   ROW0585            -1.
    COL1301   OBJ.FUNC       295.858   ROW0584             1.
    COL1302   OBJ.FUNC       295.858   ROW0584            -1.
    COL1303   ROW0484        -.29914   ROW0586             1.
    COL1304   ROW0065             1.   ROW0574          -.931
    COL1304   ROW0586        -.55017
    COL1305   ROW0074             1.   ROW0567             1.
    COL1305   ROW0576       -1.03017   ROW0587        -.14485
    COL1305   ROW0588        -.22058   ROW0589        -.05921
    COL1305   ROW0590        -.01728   ROW0591        -.05464
    COL1305   ROW0592         -.1244   ROW0593        -.11753
    COL1305   ROW0594         -.0737   ROW0595         -.0648
    COL1305   ROW0596           .877
    COL1306   OBJ.FUNC       63.5324   ROW0567             1.
    COL1307   OBJ.FUNC       63.5324   ROW0567            -1.
    COL1308   ROW0076             1.   ROW0587             1.
    COL1308   ROW0596            -1.
    COL1309   OBJ.FUNC      438.5965   ROW0587             1.
    COL1310   OBJ.FUNC      438.5965   ROW0587            -1.
    COL1311   ROW0077             1.   ROW0588             1.
    COL1311   ROW0596            -1.
    COL1312   OBJ.FUNC      288.0184   ROW0588             1.
    COL1313   OBJ.FUNC      288.0184   ROW0588            -1.
    COL1314   ROW0281             1.   ROW0589             1.
    COL1314   ROW0596            -1.
    COL1315   OBJ.FUNC      1072.961   ROW0589             1.
    COL1316   OBJ.FUNC      1072.961   ROW0589            -1.
    COL1317   ROW0238             1.   ROW0590             1.
    COL1317   ROW0596            -1.
    COL1318   OBJ.FUNC       3676.47   ROW0590             1.
    COL1319   OBJ.FUNC       3676.47   ROW0590            -1.
    COL1320   ROW0197             1.   ROW0591             1.
    COL1320   ROW0596            -1.
    COL1321   OBJ.FUNC      1162.791   ROW0591             1.
    COL1322   OBJ.FUNC      1162.791   ROW0591            -1.
    COL1323   ROW0079             1.   ROW0592             1.
    COL1323   ROW0596            -1.
    COL1324   OBJ.FUNC      510.7252   ROW0592             1.
    COL1325   OBJ.FUNC      510.7252   ROW0592            -1.
    COL1326   ROW0080             1.   ROW0593             1.
    COL1326   ROW0596            -1.
    COL1327   OBJ.FUNC      540.5405   ROW0593             1.
    COL1328   OBJ.FUNC      540.5405   ROW0593            -1.
    COL1329   ROW0594             1.   ROW0596            -1.
    COL1329   ROW0597             1.
    COL1330   OBJ.FUNC       862.069   ROW0594             1.
    COL1331   OBJ.FUNC       862.069   ROW0594            -1.
    COL1332   ROW0081             1.   ROW0595             1.
    COL1332   ROW0596            -1.
    COL1333   OBJ.FUNC      980.3922   ROW0595             1.
    COL1334   OBJ.FUNC      980.3922   ROW0595            -1.
    COL1335   ROW0597        -.09462   ROW0598             1.
    COL1336   ROW0083             1.   ROW0574          -.931
    COL1336   ROW0598        -.54978
    COL1337   OBJ.FUNC       1.32686   ROW0574             1.
    COL1338   OBJ.FUNC       1.32686   ROW0574            -1.
    COL1339   ROW0573            -1.
    COL1340   ROW0084            -1.
    COL1341   ROW0240            -1.
    COL1342   ROW0454            -1.
    COL1343   ROW0528            -1.
    COL1344   ROW0050        -.08531   ROW0081        -.00229
    COL1344   ROW0187        -.00369   ROW0599        -.00325
    COL1344   ROW0600         -.0137   ROW0601        -.00827
    COL1344   ROW0602        -.00278   ROW0603        -.00648
    COL1344   ROW0604        -.00316   ROW0605        -.00205
    COL1344   ROW0606        -.00097   ROW0607        -.00419
    COL1344   ROW0608        -.02336   ROW0609        -.04342
    COL1344   ROW0610        -.00673   ROW0611        -.00682
    COL1344   ROW0612        -.00533   ROW0613        -.50236
    COL1345   ROW0038            -1.   ROW0599             1.
    COL1346   OBJ.FUNC      22.37036   ROW0599             1.
    COL1347   OBJ.FUNC      22.37036   ROW0599            -1.
    COL1348   ROW0040            -1.   ROW0600             1.
    COL1349   OBJ.FUNC       5.31124   ROW0600             1.
    COL1350   OBJ.FUNC       5.31124   ROW0600            -1.
    COL1351   ROW0041            -1.   ROW0601             1.
    COL1352   OBJ.FUNC       8.79353   ROW0601             1.
    COL1353   OBJ.FUNC       8.79353   ROW0601            -1.
    COL1354   ROW0042            -1.   ROW0602             1.
    COL1355   OBJ.FUNC       26.1739   ROW0602             1.
    COL1356   OBJ.FUNC       26.1739   ROW0602            -1.
    COL1357   ROW0043            -1.   ROW0603             1.
    COL1358   OBJ.FUNC      11.22788   ROW0603             1.
    COL1359   OBJ.FUNC      11.22788   ROW0603            -1.
    COL1360   ROW0044            -1.   ROW0604             1.
    COL1361   OBJ.FUNC      23.03192   ROW0604             1.
    COL1362   OBJ.FUNC      23.03192   ROW0604            -1.
    COL1363   ROW0045            -1.   ROW0605             1.
    COL1364   OBJ.FUNC      35.48112   ROW0605             1.
    COL1365   OBJ.FUNC      35.48112   ROW0605            -1.
    COL1366   ROW0046            -1.   ROW0606             1.
    COL1367   OBJ.FUNC      75.12019   ROW0606             1.
    COL1368   OBJ.FUNC      75.12019   ROW0606            -1.
    COL1369   ROW0047            -1.   ROW0607             1.
    COL1370   OBJ.FUNC      17.38647   ROW0607             1.
    COL1371   OBJ.FUNC      17.38647   ROW0607            -1.
    COL1372   ROW0048            -1.   ROW0608             1.
    COL1373   OBJ.FUNC       3.11493   ROW0608             1.
    COL1374   OBJ.FUNC       3.11493   ROW0608            -1.
    COL1375   ROW0049            -1.   ROW0609             1.
    COL1376   OBJ.FUNC       1.67564   ROW0609             1.
    COL1377   OBJ.FUNC       1.67564   ROW0609            -1.
    COL1378   ROW0471            -1.   ROW0610             1.
    COL1379   OBJ.FUNC      10.80637   ROW0610             1.
    COL1380   OBJ.FUNC      10.80637   ROW0610            -1.
    COL1381   ROW0510            -1.   ROW0611             1.
    COL1382   OBJ.FUNC      10.67031   ROW0611             1.
    COL1383   OBJ.FUNC      10.67031   ROW0611            -1.
    COL1384   ROW0177            -1.   ROW0612             1.
    COL1385   OBJ.FUNC      13.65374   ROW0612             1.
    COL1386   OBJ.FUNC      13.65374   ROW0612            -1.
    COL1387   ROW0613             1.
    COL1388   OBJ.FUNC        .14484   ROW0613             1.
    COL1389   OBJ.FUNC        .14484   ROW0613            -1.
    COL1390   ROW0050        -.08531   ROW0081        -.00229
    COL1390   ROW0187        -.00369   ROW0614        -.01276
    COL1390   ROW0615        -.01473   ROW0616         -.0386
    COL1390   ROW0617        -.00548   ROW0618         -.0086
    COL1390   ROW0619        -.00788   ROW0620        -.00849
    COL1390   ROW0621        -.00205   ROW0622        -.00885
    COL1390   ROW0623        -.02229   ROW0624        -.01477
    COL1390   ROW0625        -.02697   ROW0626        -.01775
    COL1390   ROW0627        -.01217   ROW0628         -.2851
    COL1391   ROW0038            -1.   ROW0614             1.
    COL1392   OBJ.FUNC      18.18645   ROW0614             1.
    COL1393   OBJ.FUNC      18.18645   ROW0614            -1.
    COL1394   ROW0040            -1.   ROW0615             1.
    COL1395   OBJ.FUNC      15.75299   ROW0615             1.
    COL1396   OBJ.FUNC      15.75299   ROW0615            -1.
    COL1397   ROW0041            -1.   ROW0616             1.
    COL1398   OBJ.FUNC       6.01395   ROW0616             1.
    COL1399   OBJ.FUNC       6.01395   ROW0616            -1.
    COL1400   ROW0042            -1.   ROW0617             1.
    COL1401   OBJ.FUNC      42.34059   ROW0617             1.
    COL1402   OBJ.FUNC      42.34059   ROW0617            -1.
    COL1403   ROW0043            -1.   ROW0618             1.
    COL1404   OBJ.FUNC      26.98182   ROW0618             1.
    COL1405   OBJ.FUNC      26.98182   ROW0618            -1.
    COL1406   ROW0044            -1.   ROW0619             1.
    COL1407   OBJ.FUNC      29.47244   ROW0619             1.
    COL1408   OBJ.FUNC      29.47244   ROW0619            -1.
    COL1409   ROW0045            -1.   ROW0620             1.
    COL1410   OBJ.FUNC      27.33884   ROW0620             1.
    COL1411   OBJ.FUNC      27.33884   ROW0620            -1.
    COL1412   ROW0046            -1.   ROW0621             1.
    COL1413   OBJ.FUNC       113.353   ROW0621             1.
    COL1414   OBJ.FUNC       113.353   ROW0621            -1.
    COL1415   ROW0047            -1.   ROW0622             1.
    COL1416   OBJ.FUNC      26.24121   ROW0622             1.
    COL1417   OBJ.FUNC      26.24121   ROW0622            -1.
    COL1418   ROW0048            -1.   ROW0623             1.
    COL1419   OBJ.FUNC      10.41146   ROW0623             1.
    COL1420   OBJ.FUNC      10.41146   ROW0623            -1.
    COL1421   ROW0049            -1.   ROW0624             1.
    COL1422   OBJ.FUNC      15.71536   ROW0624             1.
    COL1423   OBJ.FUNC      15.71536   ROW0624            -1.
    COL1424   ROW0471            -1.   ROW0625             1.
    COL1425   OBJ.FUNC       8.60615   ROW0625             1.
    COL1426   OBJ.FUNC       8.60615   ROW0625            -1.
    COL1427   ROW0510            -1.   ROW0626             1.
    COL1428   OBJ.FUNC      13.07531   ROW0626             1.
    COL1429   OBJ.FUNC      13.07531   ROW0626            -1.
    COL1430   ROW0177            -1.   ROW0627             1.
    COL1431   OBJ.FUNC      19.06941   ROW0627             1.
    COL1432   OBJ.FUNC      19.06941   ROW0627            -1.
    COL1433   ROW0628             1.
    COL1434   OBJ.FUNC        .81415   ROW0628             1.
    COL1435   OBJ.FUNC        .81415   ROW0628            -1.
    COL1436   ROW0050        -.08531   ROW0081        -.00229
    COL1436   ROW0187        -.00369   ROW0629        -.02636
    COL1436   ROW0630        -.01881   ROW0631        -.00224
    COL1436   ROW0632        -.01671   ROW0633        -.00758
    COL1436   ROW0634        -.08988   ROW0635        -.02027
    COL1436   ROW0636         -.0112   ROW0637        -.00781
    COL1436   ROW0638        -.10546
    COL1437   ROW0040            -1.   ROW0629             1.
    COL1438   OBJ.FUNC      15.78781   ROW0629             1.
    COL1439   OBJ.FUNC      15.78781   ROW0629            -1.
    COL1440   ROW0041            -1.   ROW0630             1.
    COL1441   OBJ.FUNC      22.12585   ROW0630             1.
    COL1442   OBJ.FUNC      22.12585   ROW0630            -1.
    COL1443   ROW0042            -1.   ROW0631             1.
    COL1444   OBJ.FUNC      185.3912   ROW0631             1.
    COL1445   OBJ.FUNC      185.3912   ROW0631            -1.
    COL1446   ROW0043            -1.   ROW0632             1.
    COL1447   OBJ.FUNC       24.9066   ROW0632             1.
    COL1448   OBJ.FUNC       24.9066   ROW0632            -1.
    COL1449   ROW0044            -1.   ROW0633             1.
    COL1450   OBJ.FUNC      54.91488   ROW0633             1.
    COL1451   OBJ.FUNC      54.91488   ROW0633            -1.
    COL1452   ROW0048            -1.   ROW0634             1.
    COL1453   OBJ.FUNC       4.63019   ROW0634             1.
    COL1454   OBJ.FUNC       4.63019   ROW0634            -1.
    COL1455   ROW0049            -1.   ROW0635             1.
    COL1456   OBJ.FUNC      20.52798   ROW0635             1.
    COL1457   OBJ.FUNC      20.52798   ROW0635            -1.
    COL1458   ROW0471            -1.   ROW0636             1.
    COL1459   OBJ.FUNC      37.15538   ROW0636             1.
    COL1460   OBJ.FUNC      37.15538   ROW0636            -1.
    COL1461   ROW0177            -1.   ROW0637             1.
    COL1462   OBJ.FUNC       53.2765   ROW0637             1.
    COL1463   OBJ.FUNC       53.2765   ROW0637            -1.
    COL1464   ROW0638             1.
    COL1465   OBJ.FUNC       3.94596   ROW0638             1.
    COL1466   OBJ.FUNC       3.94596   ROW0638            -1.
    COL1467   ROW0050        -.08531   ROW0081        -.00229
    COL1467   ROW0187        -.00369   ROW0639         -.0208
    COL1467   ROW0640        -.01692   ROW0641        -.01303
    COL1467   ROW0642        -.03034   ROW0643        -.00808
    COL1467   ROW0644         -.0315   ROW0645        -.00662
    COL1467   ROW0646        -.07222
    COL1468   ROW0040            -1.   ROW0639             1.
    COL1469   OBJ.FUNC      125.9129   ROW0639             1.
    COL1470   OBJ.FUNC      125.9129   ROW0639            -1.
    COL1471   ROW0044            -1.   ROW0640             1.
    COL1472   OBJ.FUNC      154.7509   ROW0640             1.
    COL1473   OBJ.FUNC      154.7509   ROW0640            -1.
    COL1474   ROW0045            -1.   ROW0641             1.
    COL1475   OBJ.FUNC      201.0454   ROW0641             1.
    COL1476   OBJ.FUNC      201.0454   ROW0641            -1.
    COL1477   ROW0048            -1.   ROW0642             1.
    COL1478   OBJ.FUNC      86.31107   ROW0642             1.
    COL1479   OBJ.FUNC      86.31107   ROW0642            -1.
    COL1480   ROW0049            -1.   ROW0643             1.
    COL1481   OBJ.FUNC      324.0441   ROW0643             1.
    COL1482   OBJ.FUNC      324.0441   ROW0643            -1.
    COL1483   ROW0471            -1.   ROW0644             1.
    COL1484   OBJ.FUNC      83.13934   ROW0644             1.
    COL1485   OBJ.FUNC      83.13934   ROW0644            -1.
    COL1486   ROW0177            -1.   ROW0645             1.
    COL1487   OBJ.FUNC      395.5696   ROW0645             1.
    COL1488   OBJ.FUNC      395.5696   ROW0645            -1.
    COL1489   ROW0646             1.
    COL1490   OBJ.FUNC      36.26342   ROW0646             1.
    COL1491   OBJ.FUNC      36.26342   ROW0646            -1.
    COL1492   ROW0050        -.08531   ROW0081        -.00229
    COL1492   ROW0187        -.00369   ROW0647        -.01196
    COL1492   ROW0648        -.03009   ROW0649        -.03993
    COL1492   ROW0650        -.00294   ROW0651        -.01165
    COL1492   ROW0652        -.00265   ROW0653        -.00602
    COL1492   ROW0654        -.04888   ROW0655        -.01068
    COL1492   ROW0656         -.0291   ROW0657        -.01445
    COL1492   ROW0658        -.00849   ROW0659        -.24672
    COL1493   ROW0038            -1.   ROW0647             1.
    COL1494   OBJ.FUNC      35.39823   ROW0647             1.
    COL1495   OBJ.FUNC      35.39823   ROW0647            -1.
    COL1496   ROW0103            -1.   ROW0648             1.
    COL1497   OBJ.FUNC       14.0746   ROW0648             1.
    COL1498   OBJ.FUNC       14.0746   ROW0648            -1.
    COL1499   ROW0040            -1.   ROW0649             1.
    COL1500   OBJ.FUNC      10.60445   ROW0649             1.
    COL1501   OBJ.FUNC      10.60445   ROW0649            -1.
    COL1502   ROW0042            -1.   ROW0650             1.
    COL1503   OBJ.FUNC      144.1338   ROW0650             1.
    COL1504   OBJ.FUNC      144.1338   ROW0650            -1.
    COL1505   ROW0044            -1.   ROW0651             1.
    COL1506   OBJ.FUNC       36.3557   ROW0651             1.
    COL1507   OBJ.FUNC       36.3557   ROW0651            -1.
    COL1508   ROW0045            -1.   ROW0652             1.
    COL1509   OBJ.FUNC      159.5914   ROW0652             1.
    COL1510   OBJ.FUNC      159.5914   ROW0652            -1.
    COL1511   ROW0047            -1.   ROW0653             1.
    COL1512   OBJ.FUNC       70.3136   ROW0653             1.
    COL1513   OBJ.FUNC       70.3136   ROW0653            -1.
    COL1514   ROW0048            -1.   ROW0654             1.
    COL1515   OBJ.FUNC       8.66326   ROW0654             1.
    COL1516   OBJ.FUNC       8.66326   ROW0654            -1.
    COL1517   ROW0049            -1.   ROW0655             1.
    COL1518   OBJ.FUNC      39.63221   ROW0655             1.
    COL1519   OBJ.FUNC      39.63221   ROW0655            -1.
    COL1520   ROW0471            -1.   ROW0656             1.
    COL1521   OBJ.FUNC      14.55223   ROW0656             1.
    COL1522   OBJ.FUNC      14.55223   ROW0656            -1.
    COL1523   ROW0510            -1.   ROW0657             1.
    COL1524   OBJ.FUNC      29.30832   ROW0657             1.
    COL1525   OBJ.FUNC      29.30832   ROW0657            -1.
    COL1526   ROW0177            -1.   ROW0658             1.
    COL1527   OBJ.FUNC       49.9002   ROW0658             1.
    COL1528   OBJ.FUNC       49.9002   ROW0658            -1.
    COL1529   ROW0659             1.
    COL1530   OBJ.FUNC       1.71627   ROW0659             1.
    COL1531   OBJ.FUNC       1.71627   ROW0659            -1.
    COL1532   ROW0050        -.08531   ROW0081        -.00229
    COL1532   ROW0187        -.00369   ROW0660        -.00397
    COL1532   ROW0661        -.01242   ROW0662        -.02156
    COL1532   ROW0663        -.00299   ROW0664        -.00336
    COL1532   ROW0665        -.00904   ROW0666        -.00154
    COL1532   ROW0667        -.00129   ROW0668        -.00483
    COL1532   ROW0669        -.02471   ROW0670        -.00836
    COL1532   ROW0671        -.03146   ROW0672        -.00794
    COL1532   ROW0673        -.27671
    COL1533   ROW0038            -1.   ROW0660             1.
    COL1534   OBJ.FUNC      68.06425   ROW0660             1.
    COL1535   OBJ.FUNC      68.06425   ROW0660            -1.
    COL1536   ROW0103            -1.   ROW0661             1.
    COL1537   OBJ.FUNC      21.73441   ROW0661             1.
    COL1538   OBJ.FUNC      21.73441   ROW0661            -1.
    COL1539   ROW0040            -1.   ROW0662             1.
    COL1540   OBJ.FUNC      12.51565   ROW0662             1.
    COL1541   OBJ.FUNC      12.51565   ROW0662            -1.
    COL1542   ROW0042            -1.   ROW0663             1.
    COL1543   OBJ.FUNC      90.17133   ROW0663             1.
    COL1544   OBJ.FUNC      90.17133   ROW0663            -1.
    COL1545   ROW0043            -1.   ROW0664             1.
    COL1546   OBJ.FUNC      80.38585   ROW0664             1.
    COL1547   OBJ.FUNC      80.38585   ROW0664            -1.
    COL1548   ROW0044            -1.   ROW0665             1.
    COL1549   OBJ.FUNC      29.84362   ROW0665             1.
    COL1550   OBJ.FUNC      29.84362   ROW0665            -1.
    COL1551   ROW0045            -1.   ROW0666             1.
    COL1552   OBJ.FUNC      175.1927   ROW0666             1.
    COL1553   OBJ.FUNC      175.1927   ROW0666            -1.
    COL1554   ROW0046            -1.   ROW0667             1.
    COL1555   OBJ.FUNC      209.1175   ROW0667             1.
    COL1556   OBJ.FUNC      209.1175   ROW0667            -1.
    COL1557   ROW0047            -1.   ROW0668             1.
    COL1558   OBJ.FUNC       55.8909   ROW0668             1.
    COL1559   OBJ.FUNC       55.8909   ROW0668            -1.
    COL1560   ROW0048            -1.   ROW0669             1.
    COL1561   OBJ.FUNC      10.92156   ROW0669             1.
    COL1562   OBJ.FUNC      10.92156   ROW0669            -1.
    COL1563   ROW0049            -1.   ROW0670             1.
    COL1564   OBJ.FUNC      32.28097   ROW0670             1.
    COL1565   OBJ.FUNC      32.28097   ROW0670            -1.
    COL1566   ROW0471            -1.   ROW0671             1.
    COL1567   OBJ.FUNC       8.57942   ROW0671             1.
    COL1568   OBJ.FUNC       8.57942   ROW0671            -1.
    COL1569   ROW0177            -1.   ROW0672             1.
    COL1570   OBJ.FUNC      33.99048   ROW0672             1.
    COL1571   OBJ.FUNC      33.99048   ROW0672            -1.
    COL1572   ROW0673             1.
    COL1573   OBJ.FUNC        .97534   ROW0673             1.
    COL1574   OBJ.FUNC        .97534   ROW0673            -1.
    COL1575   ROW0050        -.08531   ROW0081        -.00229
    COL1575   ROW0187        -.00369   ROW0674        -.00285
    COL1575   ROW0675        -.01905   ROW0676        -.00169
    COL1575   ROW0677        -.00544   ROW0678        -.00182
    COL1575   ROW0679        -.00106   ROW0680        -.00425
    COL1575   ROW0681        -.01617   ROW0682        -.00934
    COL1575   ROW0683        -.02057   ROW0684        -.01984
    COL1575   ROW0685         -.0089   ROW0686        -.25848
    COL1576   ROW0038            -1.   ROW0674             1.
    COL1577   OBJ.FUNC      94.16196   ROW0674             1.
    COL1578   OBJ.FUNC      94.16196   ROW0674            -1.
    COL1579   ROW0040            -1.   ROW0675             1.
    COL1580   OBJ.FUNC       14.1004   ROW0675             1.
    COL1581   OBJ.FUNC       14.1004   ROW0675            -1.
    COL1582   ROW0042            -1.   ROW0676             1.
    COL1583   OBJ.FUNC       159.185   ROW0676             1.
    COL1584   OBJ.FUNC       159.185   ROW0676            -1.
    COL1585   ROW0043            -1.   ROW0677             1.
    COL1586   OBJ.FUNC      49.41199   ROW0677             1.
    COL1587   OBJ.FUNC      49.41199   ROW0677            -1.
    COL1588   ROW0045            -1.   ROW0678             1.
    COL1589   OBJ.FUNC      147.7105   ROW0678             1.
    COL1590   OBJ.FUNC      147.7105   ROW0678            -1.
    COL1591   ROW0046            -1.   ROW0679             1.
    COL1592   OBJ.FUNC      252.7806   ROW0679             1.
    COL1593   OBJ.FUNC      252.7806   ROW0679            -1.
    COL1594   ROW0047            -1.   ROW0680             1.
    COL1595   OBJ.FUNC      63.15524   ROW0680             1.
    COL1596   OBJ.FUNC      63.15524   ROW0680            -1.
    COL1597   ROW0048            -1.   ROW0681             1.
    COL1598   OBJ.FUNC      16.61019   ROW0681             1.
    COL1599   OBJ.FUNC      16.61019   ROW0681            -1.
    COL1600   ROW0049            -1.   ROW0682             1.
    COL1601   OBJ.FUNC      28.77036   ROW0682             1.
    COL1602   OBJ.FUNC      28.77036   ROW0682            -1.
    COL1603   ROW0471            -1.   ROW0683             1.
    COL1604   OBJ.FUNC      13.05688   ROW0683             1.
    COL1605   OBJ.FUNC      13.05688   ROW0683            -1.
    COL1606   ROW0510            -1.   ROW0684             1.
    COL1607   OBJ.FUNC      13.54133   ROW0684             1.
    COL1608   OBJ.FUNC      13.54133   ROW0684            -1.
    COL1609   ROW0177            -1.   ROW0685             1.
    COL1610   OBJ.FUNC      30.17501   ROW0685             1.
    COL1611   OBJ.FUNC      30.17501   ROW0685            -1.
    COL1612   ROW0686             1.
    COL1613   OBJ.FUNC       1.03933   ROW0686             1.
    COL1614   OBJ.FUNC       1.03933   ROW0686            -1.
    COL1615   ROW0060        -.57434   ROW0065            -1.
    COL1615   ROW0687            -1.
    COL1616   ROW0074         -.5653   ROW0083            -1.
    COL1616   ROW0688            -1.
    COL1617   ROW0051             1.   ROW0687             1.
    COL1618   ROW0687            -1.
    COL1619   ROW0053             1.   ROW0688             1.
    COL1620   ROW0688            -1.
RHS
    RHS       ROW0002        41293.6   ROW0003        53631.8
    RHS       ROW0004         73140.   ROW0005        105985.
    RHS       ROW0006        72970.4   ROW0007        88367.1
    RHS       ROW0008        41523.9   ROW0009        54531.4
    RHS       ROW0010        29348.7   ROW0011        30854.4
    RHS       ROW0012       130354.2   ROW0013       138598.8
    RHS       ROW0014        96428.4   ROW0015        69385.6
BOUNDS
 FR BOUND     COL1618
 FR BOUND     COL1620
ENDATA
