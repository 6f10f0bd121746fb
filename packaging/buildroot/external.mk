include $(sort $(wildcard $(BR2_EXTERNAL_KULGUI_PATH)/package/*/*.mk))
